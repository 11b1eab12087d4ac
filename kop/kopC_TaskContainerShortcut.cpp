#include "kop/kopC_TaskContainerShortcut.h"

#include "kop/kopC_TaskContainerInModelShortcut.h"

kopC_TaskContainerShortcut kopC_TaskContainerShortcut::Ctor(const cls_ReadVisitor& r) {
  return ddr_ShortcutCtor<kopC_TaskContainerShortcut, kopC_TaskContainerInModelShortcut>(r);
}
