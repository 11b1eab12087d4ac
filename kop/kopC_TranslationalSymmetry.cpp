#include "kop/kopC_TranslationalSymmetry.h"

#include <cmath>

#include "framework/fw_PersistentClassImpl.h"
#include "kop/kopC_assert.h"

kopC_TranslationalSymmetry::kopC_TranslationalSymmetry(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

void kopC_TranslationalSymmetry::AssertValid() const {
  kopC_Assert(translation != 0 && !std::isnan(translation), kopC_TranslationZero);  // a NaN is no translation
}

template class fw_PersistentClass<kopC_TranslationalSymmetry, kopC_GeometricRestriction>;
