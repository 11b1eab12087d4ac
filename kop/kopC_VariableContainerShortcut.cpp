#include "kop/kopC_VariableContainerShortcut.h"

#include "kop/kopC_VariableContainerInModelShortcut.h"

kopC_VariableContainerShortcut kopC_VariableContainerShortcut::Ctor(const cls_ReadVisitor& r) {
  return ddr_ShortcutCtor<kopC_VariableContainerShortcut, kopC_VariableContainerInModelShortcut>(r);
}
