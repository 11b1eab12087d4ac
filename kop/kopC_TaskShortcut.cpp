#include "kop/kopC_TaskShortcut.h"

#include "kop/kopC_TaskInTaskContainerShortcut.h"

kopC_TaskShortcut kopC_TaskShortcut::Ctor(const cls_ReadVisitor& r) {
  return ddr_ShortcutCtor<kopC_TaskShortcut, kopC_TaskInTaskContainerShortcut>(r);
}
