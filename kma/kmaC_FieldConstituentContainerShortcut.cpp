#include "kma/kmaC_FieldConstituentContainerShortcut.h"

#include "kma/kmaC_FieldConstituentContainerInModelShortcut.h"

kmaC_FieldConstituentContainerShortcut kmaC_FieldConstituentContainerShortcut::Ctor(const cls_ReadVisitor& r) {
  return ddr_ShortcutCtor<kmaC_FieldConstituentContainerShortcut, kmaC_FieldConstituentContainerInModelShortcut>(r);
}
