#include "kfl/kflC_FilterContainerShortcut.h"

#include "kfl/kflC_FilterContainerInModelShortcut.h"

kflC_FilterContainerShortcut kflC_FilterContainerShortcut::Ctor(const cls_ReadVisitor& r) {
  return ddr_ShortcutCtor<kflC_FilterContainerShortcut, kflC_FilterContainerInModelShortcut>(r);
}
