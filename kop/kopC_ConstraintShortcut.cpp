#include "kop/kopC_ConstraintShortcut.h"

#include "kop/kopC_ConstraintInConstraintContainerShortcut.h"

kopC_ConstraintShortcut kopC_ConstraintShortcut::Ctor(const cls_ReadVisitor& r) {
  return ddr_ShortcutCtor<kopC_ConstraintShortcut, kopC_ConstraintInConstraintContainerShortcut>(r);
}
