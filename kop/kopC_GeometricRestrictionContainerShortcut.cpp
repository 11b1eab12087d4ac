#include "kop/kopC_GeometricRestrictionContainerShortcut.h"

#include "kop/kopC_GeometricRestrictionContainerInModelShortcut.h"

kopC_GeometricRestrictionContainerShortcut kopC_GeometricRestrictionContainerShortcut::Ctor(const cls_ReadVisitor& r) {
  return ddr_ShortcutCtor<kopC_GeometricRestrictionContainerShortcut, kopC_GeometricRestrictionContainerInModelShortcut>(r);
}
