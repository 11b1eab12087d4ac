#include "kco/kcoC_ConstraintShortcut.h"

#include "kco/kcoC_ConstraintInConstraintContainerShortcut.h"

kcoC_ConstraintShortcut kcoC_ConstraintShortcut::Ctor(const cls_ReadVisitor& r) {
  return ddr_ShortcutCtor<kcoC_ConstraintShortcut, kcoC_ConstraintInConstraintContainerShortcut>(r);
}
