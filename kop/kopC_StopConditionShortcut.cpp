#include "kop/kopC_StopConditionShortcut.h"

#include "kop/kopC_StopConditionInStopConditionContainerShortcut.h"

kopC_StopConditionShortcut kopC_StopConditionShortcut::Ctor(const cls_ReadVisitor& r) {
  return ddr_ShortcutCtor<kopC_StopConditionShortcut, kopC_StopConditionInStopConditionContainerShortcut>(r);
}
