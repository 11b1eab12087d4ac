#include "kbp/kbpC_RectangularProfile.h"

#include "framework/fw_FieldTable.h"
#include "kbp/kbpC_assert.h"

kbpC_RectangularProfile::kbpC_RectangularProfile(const cls_ReadVisitor& reader) : kbpC_BeamProfile(reader) { fw_ReadFields(*this, reader); }
void kbpC_RectangularProfile::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kbpC_RectangularProfile* kbpC_RectangularProfile::Copy() const { return new kbpC_RectangularProfile(*this); }
bool kbpC_RectangularProfile::operator==(const kbpC_RectangularProfile& o) const { return fw_EqualFields(*this, o); }
bool kbpC_RectangularProfile::SameAs(const kbpC_BeamProfile& o) const { return *this == static_cast<const kbpC_RectangularProfile&>(o); }
void kbpC_RectangularProfile::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kbpC_RectangularProfile>(r); }
void kbpC_RectangularProfile::CowDtor(void* p) { fw_CowDtor<kbpC_RectangularProfile>(p); }

void kbpC_RectangularProfile::AssertValid() const {
  kbpC_Assert(a > 0, kbpC_DimensionANotPositive);
  kbpC_Assert(b > 0, kbpC_DimensionBNotPositive);
}
