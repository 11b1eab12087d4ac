#include "kop/kopC_VariableShortcut.h"

#include "kop/kopC_VariableInVariableContainerShortcut.h"

kopC_VariableShortcut kopC_VariableShortcut::Ctor(const cls_ReadVisitor& r) {
  return ddr_ShortcutCtor<kopC_VariableShortcut, kopC_VariableInVariableContainerShortcut>(r);
}
