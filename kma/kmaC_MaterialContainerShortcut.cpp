#include "kma/kmaC_MaterialContainerShortcut.h"

#include "kma/kmaC_MaterialContainerInModelShortcut.h"

kmaC_MaterialContainerShortcut kmaC_MaterialContainerShortcut::Ctor(const cls_ReadVisitor& r) {
  return ddr_ShortcutCtor<kmaC_MaterialContainerShortcut, kmaC_MaterialContainerInModelShortcut>(r);
}
