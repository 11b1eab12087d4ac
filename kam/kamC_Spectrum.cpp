#include "kam/kamC_Spectrum.h"

#include "framework/fw_FieldTable.h"
#include "kam/kamC_assert.h"

kamC_Spectrum::kamC_Spectrum(const cls_ReadVisitor& reader) : kamC_Amplitude(reader) { fw_ReadFields(*this, reader); }
void kamC_Spectrum::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kamC_Spectrum* kamC_Spectrum::Copy() const { return new kamC_Spectrum(*this); }
bool kamC_Spectrum::operator==(const kamC_Spectrum& o) const { return fw_EqualFields(*this, o); }
bool kamC_Spectrum::SameAs(const kamC_Amplitude& o) const { return *this == static_cast<const kamC_Spectrum&>(o); }
void kamC_Spectrum::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kamC_Spectrum>(r); }
void kamC_Spectrum::CowDtor(void* p) { fw_CowDtor<kamC_Spectrum>(p); }

// Written so that a NaN gravity fails.
void kamC_Spectrum::AssertValid() const {
  kamC_Assert(gravity >= 0, kamC_ReferenceGravityNegative);
  kamC_Assert(data.Columns() == 3, kamC_NotThreeColumns);
}
