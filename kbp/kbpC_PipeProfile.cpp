#include "kbp/kbpC_PipeProfile.h"

#include "framework/fw_FieldTable.h"
#include "kbp/kbpC_assert.h"

kbpC_PipeProfile::kbpC_PipeProfile(const cls_ReadVisitor& reader) : kbpC_BeamProfile(reader) { fw_ReadFields(*this, reader); }
void kbpC_PipeProfile::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kbpC_PipeProfile* kbpC_PipeProfile::Copy() const { return new kbpC_PipeProfile(*this); }
bool kbpC_PipeProfile::operator==(const kbpC_PipeProfile& o) const { return fw_EqualFields(*this, o); }
bool kbpC_PipeProfile::SameAs(const kbpC_BeamProfile& o) const { return *this == static_cast<const kbpC_PipeProfile&>(o); }
void kbpC_PipeProfile::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kbpC_PipeProfile>(r); }
void kbpC_PipeProfile::CowDtor(void* p) { fw_CowDtor<kbpC_PipeProfile>(p); }

void kbpC_PipeProfile::AssertValid() const {
  kbpC_Assert(r > 0, kbpC_RadiusNotPositive);
  kbpC_Assert(t > 0, kbpC_ThicknessNotPositive);
  kbpC_Assert(t < r, kbpC_ThicknessNotBelowRadius);
}
