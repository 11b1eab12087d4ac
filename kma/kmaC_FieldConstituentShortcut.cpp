#include "kma/kmaC_FieldConstituentShortcut.h"

#include "kma/kmaC_FieldConstituentInFieldConstituentContainerShortcut.h"

kmaC_FieldConstituentShortcut kmaC_FieldConstituentShortcut::Ctor(const cls_ReadVisitor& r) {
  return ddr_ShortcutCtor<kmaC_FieldConstituentShortcut, kmaC_FieldConstituentInFieldConstituentContainerShortcut>(r);
}
