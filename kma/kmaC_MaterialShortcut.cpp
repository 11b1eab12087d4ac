#include "kma/kmaC_MaterialShortcut.h"

#include "kma/kmaC_MaterialInMaterialContainerShortcut.h"

kmaC_MaterialShortcut kmaC_MaterialShortcut::Ctor(const cls_ReadVisitor& r) {
  return ddr_ShortcutCtor<kmaC_MaterialShortcut, kmaC_MaterialInMaterialContainerShortcut>(r);
}
