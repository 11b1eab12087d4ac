#include "kbp/kbpC_BoxProfile.h"

#include "framework/fw_FieldTable.h"
#include "kbp/kbpC_assert.h"

kbpC_BoxProfile::kbpC_BoxProfile(const cls_ReadVisitor& reader) : kbpC_BeamProfile(reader) { fw_ReadFields(*this, reader); }
void kbpC_BoxProfile::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kbpC_BoxProfile* kbpC_BoxProfile::Copy() const { return new kbpC_BoxProfile(*this); }
bool kbpC_BoxProfile::operator==(const kbpC_BoxProfile& o) const { return fw_EqualFields(*this, o); }
bool kbpC_BoxProfile::SameAs(const kbpC_BeamProfile& o) const { return *this == static_cast<const kbpC_BoxProfile&>(o); }
void kbpC_BoxProfile::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kbpC_BoxProfile>(r); }
void kbpC_BoxProfile::CowDtor(void* p) { fw_CowDtor<kbpC_BoxProfile>(p); }

void kbpC_BoxProfile::AssertValid() const {
  kbpC_Assert(b > 0, kbpC_HeightNotPositive);
  kbpC_Assert(a > 0, kbpC_WidthNotPositive);
  if (uniformThickness) {
    kbpC_Assert(t1 > 0, kbpC_ThicknessNotPositive);
    kbpC_Assert(t1 < a / 2, kbpC_ThicknessNotBelowHalfWidth);
    kbpC_Assert(t1 < b / 2, kbpC_ThicknessNotBelowHalfHeight);
  } else {
    kbpC_Assert(t1 > 0 && t2 > 0 && t3 > 0 && t4 > 0, kbpC_ThicknessesNotPositive);
    kbpC_Assert(t1 + t3 < a, kbpC_T1PlusT3NotBelowWidth);
    kbpC_Assert(t2 + t4 < b, kbpC_T2PlusT4NotBelowHeight);
  }
}
