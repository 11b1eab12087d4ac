#include "kco/kcoC_ConstraintContainerShortcut.h"

#include "kco/kcoC_ConstraintContainerInModelShortcut.h"

kcoC_ConstraintContainerShortcut kcoC_ConstraintContainerShortcut::Ctor(const cls_ReadVisitor& r) {
  return ddr_ShortcutCtor<kcoC_ConstraintContainerShortcut, kcoC_ConstraintContainerInModelShortcut>(r);
}
