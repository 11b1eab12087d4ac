#include "kbp/kbpC_LbeamProfile.h"

#include "framework/fw_FieldTable.h"
#include "kbp/kbpC_assert.h"

kbpC_LbeamProfile::kbpC_LbeamProfile(const cls_ReadVisitor& reader) : kbpC_BeamProfile(reader) { fw_ReadFields(*this, reader); }
void kbpC_LbeamProfile::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kbpC_LbeamProfile* kbpC_LbeamProfile::Copy() const { return new kbpC_LbeamProfile(*this); }
bool kbpC_LbeamProfile::operator==(const kbpC_LbeamProfile& o) const { return fw_EqualFields(*this, o); }
bool kbpC_LbeamProfile::SameAs(const kbpC_BeamProfile& o) const { return *this == static_cast<const kbpC_LbeamProfile&>(o); }
void kbpC_LbeamProfile::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kbpC_LbeamProfile>(r); }
void kbpC_LbeamProfile::CowDtor(void* p) { fw_CowDtor<kbpC_LbeamProfile>(p); }

void kbpC_LbeamProfile::AssertValid() const {
  kbpC_Assert(a > 0, kbpC_DimensionANotPositive);
  kbpC_Assert(b > 0, kbpC_DimensionBNotPositive);
  kbpC_Assert(t1 > 0, kbpC_ThicknessT1NotPositive);
  kbpC_Assert(t2 > 0, kbpC_ThicknessT2NotPositive);
  kbpC_Assert(t1 < b, kbpC_T1NotBelowB);
  kbpC_Assert(t2 < a, kbpC_T2NotBelowA);
}
