#include "kop/kopC_BaseVariableShortcut.h"

#include "kop/kopC_VariableInVariableContainerShortcut.h"

kopC_BaseVariableShortcut kopC_BaseVariableShortcut::Ctor(const cls_ReadVisitor& r) {
  return ddr_ShortcutCtor<kopC_BaseVariableShortcut, kopC_VariableInVariableContainerShortcut>(r);
}
