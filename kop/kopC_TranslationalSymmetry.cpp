#include "kop/kopC_TranslationalSymmetry.h"

#include <cmath>

#include "framework/fw_FieldTable.h"
#include "kop/kopC_assert.h"

kopC_TranslationalSymmetry::kopC_TranslationalSymmetry(const cls_ReadVisitor& reader) : kopC_GeometricRestriction(reader) { fw_ReadFields(*this, reader); }
void kopC_TranslationalSymmetry::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kopC_TranslationalSymmetry* kopC_TranslationalSymmetry::Copy() const { return new kopC_TranslationalSymmetry(*this); }
bool kopC_TranslationalSymmetry::operator==(const kopC_TranslationalSymmetry& o) const { return fw_EqualFields(*this, o); }
bool kopC_TranslationalSymmetry::SameAs(const kopC_GeometricRestriction& o) const { return *this == static_cast<const kopC_TranslationalSymmetry&>(o); }
void kopC_TranslationalSymmetry::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kopC_TranslationalSymmetry>(r); }
void kopC_TranslationalSymmetry::CowDtor(void* p) { fw_CowDtor<kopC_TranslationalSymmetry>(p); }

void kopC_TranslationalSymmetry::AssertValid() const {
  kopC_Assert(translation != 0 && !std::isnan(translation), kopC_TranslationZero);  // a NaN is no translation
}
