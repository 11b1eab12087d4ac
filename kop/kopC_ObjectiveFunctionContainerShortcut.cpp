#include "kop/kopC_ObjectiveFunctionContainerShortcut.h"

#include "kop/kopC_ObjectiveFunctionContainerInModelShortcut.h"

kopC_ObjectiveFunctionContainerShortcut kopC_ObjectiveFunctionContainerShortcut::Ctor(const cls_ReadVisitor& r) {
  return ddr_ShortcutCtor<kopC_ObjectiveFunctionContainerShortcut, kopC_ObjectiveFunctionContainerInModelShortcut>(r);
}
