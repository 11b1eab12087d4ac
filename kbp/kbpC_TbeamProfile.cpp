#include "kbp/kbpC_TbeamProfile.h"

#include "framework/fw_FieldTable.h"
#include "kbp/kbpC_assert.h"

kbpC_TbeamProfile::kbpC_TbeamProfile(const cls_ReadVisitor& reader) : kbpC_BeamProfile(reader) { fw_ReadFields(*this, reader); }
void kbpC_TbeamProfile::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kbpC_TbeamProfile* kbpC_TbeamProfile::Copy() const { return new kbpC_TbeamProfile(*this); }
bool kbpC_TbeamProfile::operator==(const kbpC_TbeamProfile& o) const { return fw_EqualFields(*this, o); }
bool kbpC_TbeamProfile::SameAs(const kbpC_BeamProfile& o) const { return *this == static_cast<const kbpC_TbeamProfile&>(o); }
void kbpC_TbeamProfile::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kbpC_TbeamProfile>(r); }
void kbpC_TbeamProfile::CowDtor(void* p) { fw_CowDtor<kbpC_TbeamProfile>(p); }

void kbpC_TbeamProfile::AssertValid() const {
  kbpC_Assert(b > 0, kbpC_DimensionBNotPositive);
  kbpC_Assert(h > 0, kbpC_DimensionHNotPositive);
  kbpC_Assert(tw > 0, kbpC_ThicknessTwNotPositive);
  kbpC_Assert(tf > 0, kbpC_ThicknessTfNotPositive);
  kbpC_Assert(tf < h, kbpC_TfNotBelowH);
  kbpC_Assert(tw < b, kbpC_TwNotBelowB);
}
