#include "kfl/kflC_FilterShortcut.h"

#include "kfl/kflC_FilterInFilterContainerShortcut.h"

kflC_FilterShortcut kflC_FilterShortcut::Ctor(const cls_ReadVisitor& r) {
  return ddr_ShortcutCtor<kflC_FilterShortcut, kflC_FilterInFilterContainerShortcut>(r);
}
