#include "kop/kopC_ConstraintContainerShortcut.h"

#include "kop/kopC_ConstraintContainerInModelShortcut.h"

kopC_ConstraintContainerShortcut kopC_ConstraintContainerShortcut::Ctor(const cls_ReadVisitor& r) {
  return ddr_ShortcutCtor<kopC_ConstraintContainerShortcut, kopC_ConstraintContainerInModelShortcut>(r);
}
