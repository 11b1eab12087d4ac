#include "kop/kopC_GeometricRestrictionShortcut.h"

#include "kop/kopC_GeometricRestrictionInGeometricRestrictionContainerShortcut.h"

kopC_GeometricRestrictionShortcut kopC_GeometricRestrictionShortcut::Ctor(const cls_ReadVisitor& r) {
  return ddr_ShortcutCtor<kopC_GeometricRestrictionShortcut, kopC_GeometricRestrictionInGeometricRestrictionContainerShortcut>(r);
}
