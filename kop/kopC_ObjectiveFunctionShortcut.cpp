#include "kop/kopC_ObjectiveFunctionShortcut.h"

#include "kop/kopC_ObjectiveFunctionInObjectiveFunctionContainerShortcut.h"

kopC_ObjectiveFunctionShortcut kopC_ObjectiveFunctionShortcut::Ctor(const cls_ReadVisitor& r) {
  return ddr_ShortcutCtor<kopC_ObjectiveFunctionShortcut, kopC_ObjectiveFunctionInObjectiveFunctionContainerShortcut>(r);
}
