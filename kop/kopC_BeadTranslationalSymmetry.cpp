#include "kop/kopC_BeadTranslationalSymmetry.h"

#include <cmath>

#include "framework/fw_FieldTable.h"
#include "kop/kopC_assert.h"

kopC_BeadTranslationalSymmetry::kopC_BeadTranslationalSymmetry(const cls_ReadVisitor& reader) : kopC_GeometricRestriction(reader) { fw_ReadFields(*this, reader); }
void kopC_BeadTranslationalSymmetry::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kopC_BeadTranslationalSymmetry* kopC_BeadTranslationalSymmetry::Copy() const { return new kopC_BeadTranslationalSymmetry(*this); }
bool kopC_BeadTranslationalSymmetry::operator==(const kopC_BeadTranslationalSymmetry& o) const { return fw_EqualFields(*this, o); }
bool kopC_BeadTranslationalSymmetry::SameAs(const kopC_GeometricRestriction& o) const { return *this == static_cast<const kopC_BeadTranslationalSymmetry&>(o); }
void kopC_BeadTranslationalSymmetry::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kopC_BeadTranslationalSymmetry>(r); }
void kopC_BeadTranslationalSymmetry::CowDtor(void* p) { fw_CowDtor<kopC_BeadTranslationalSymmetry>(p); }

void kopC_BeadTranslationalSymmetry::AssertValid() const {
  kopC_Assert(translation != 0 && !std::isnan(translation), kopC_TranslationZero);  // a NaN is no translation
}
