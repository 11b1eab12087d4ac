#include "kop/kopC_ShapeTranslationalSymmetry.h"

#include <cmath>

#include "framework/fw_PersistentClassImpl.h"
#include "kop/kopC_assert.h"

kopC_ShapeTranslationalSymmetry::kopC_ShapeTranslationalSymmetry(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

void kopC_ShapeTranslationalSymmetry::AssertValid() const {
  kopC_Assert(translation != 0 && !std::isnan(translation), kopC_TranslationZero);  // a NaN is no translation
}

template class fw_PersistentClass<kopC_ShapeTranslationalSymmetry, kopC_GeometricRestriction>;
