#include "kop/kopC_BeadTranslationalSymmetry.h"

#include <cmath>

#include "framework/fw_PersistentClassImpl.h"
#include "kop/kopC_assert.h"

kopC_BeadTranslationalSymmetry::kopC_BeadTranslationalSymmetry(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

void kopC_BeadTranslationalSymmetry::AssertValid() const {
  kopC_Assert(translation != 0 && !std::isnan(translation), kopC_TranslationZero);  // a NaN is no translation
}

template class fw_PersistentClass<kopC_BeadTranslationalSymmetry, kopC_GeometricRestriction>;
