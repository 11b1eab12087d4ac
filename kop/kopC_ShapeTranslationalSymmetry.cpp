#include "kop/kopC_ShapeTranslationalSymmetry.h"

#include <cmath>

#include "framework/fw_FieldTable.h"
#include "kop/kopC_assert.h"

kopC_ShapeTranslationalSymmetry::kopC_ShapeTranslationalSymmetry(const cls_ReadVisitor& reader) : kopC_GeometricRestriction(reader) { fw_ReadFields(*this, reader); }
void kopC_ShapeTranslationalSymmetry::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kopC_ShapeTranslationalSymmetry* kopC_ShapeTranslationalSymmetry::Copy() const { return new kopC_ShapeTranslationalSymmetry(*this); }
bool kopC_ShapeTranslationalSymmetry::operator==(const kopC_ShapeTranslationalSymmetry& o) const { return fw_EqualFields(*this, o); }
bool kopC_ShapeTranslationalSymmetry::SameAs(const kopC_GeometricRestriction& o) const { return *this == static_cast<const kopC_ShapeTranslationalSymmetry&>(o); }
void kopC_ShapeTranslationalSymmetry::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kopC_ShapeTranslationalSymmetry>(r); }
void kopC_ShapeTranslationalSymmetry::CowDtor(void* p) { fw_CowDtor<kopC_ShapeTranslationalSymmetry>(p); }

void kopC_ShapeTranslationalSymmetry::AssertValid() const {
  kopC_Assert(translation != 0 && !std::isnan(translation), kopC_TranslationZero);  // a NaN is no translation
}
