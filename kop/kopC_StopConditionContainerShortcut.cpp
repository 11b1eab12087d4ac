#include "kop/kopC_StopConditionContainerShortcut.h"

#include "kop/kopC_StopConditionContainerInModelShortcut.h"

kopC_StopConditionContainerShortcut kopC_StopConditionContainerShortcut::Ctor(const cls_ReadVisitor& r) {
  return ddr_ShortcutCtor<kopC_StopConditionContainerShortcut, kopC_StopConditionContainerInModelShortcut>(r);
}
