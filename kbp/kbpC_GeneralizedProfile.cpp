#include "kbp/kbpC_GeneralizedProfile.h"

#include "framework/fw_FieldTable.h"
#include "kbp/kbpC_assert.h"

kbpC_GeneralizedProfile::kbpC_GeneralizedProfile(const cls_ReadVisitor& reader) : kbpC_BeamProfile(reader) { fw_ReadFields(*this, reader); }
void kbpC_GeneralizedProfile::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kbpC_GeneralizedProfile* kbpC_GeneralizedProfile::Copy() const { return new kbpC_GeneralizedProfile(*this); }
bool kbpC_GeneralizedProfile::operator==(const kbpC_GeneralizedProfile& o) const { return fw_EqualFields(*this, o); }
bool kbpC_GeneralizedProfile::SameAs(const kbpC_BeamProfile& o) const { return *this == static_cast<const kbpC_GeneralizedProfile&>(o); }
void kbpC_GeneralizedProfile::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kbpC_GeneralizedProfile>(r); }
void kbpC_GeneralizedProfile::CowDtor(void* p) { fw_CowDtor<kbpC_GeneralizedProfile>(p); }

// The bound on i12 is strict below and inclusive above, on purpose.
void kbpC_GeneralizedProfile::AssertValid() const {
  kbpC_Assert(area > 0, kbpC_AreaNotPositive);
  kbpC_Assert(i11 > 0, kbpC_I11NotPositive);
  const double half = (i11 + i22) / 2;
  kbpC_Assert(-half < i12 && i12 <= half, kbpC_I12OutOfRange);
  kbpC_Assert(i22 != 0 || i12 == 0, kbpC_I12NotZeroWithZeroI22);
  kbpC_Assert(i22 >= 0, kbpC_I22Negative);
  kbpC_Assert(j >= 0, kbpC_JNegative);
}
