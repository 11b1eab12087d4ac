#include "kbp/kbpC_IbeamProfile.h"

#include "framework/fw_FieldTable.h"
#include "kbp/kbpC_assert.h"

kbpC_IbeamProfile::kbpC_IbeamProfile(const cls_ReadVisitor& reader) : kbpC_BeamProfile(reader) { fw_ReadFields(*this, reader); }
void kbpC_IbeamProfile::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kbpC_IbeamProfile* kbpC_IbeamProfile::Copy() const { return new kbpC_IbeamProfile(*this); }
bool kbpC_IbeamProfile::operator==(const kbpC_IbeamProfile& o) const { return fw_EqualFields(*this, o); }
bool kbpC_IbeamProfile::SameAs(const kbpC_BeamProfile& o) const { return *this == static_cast<const kbpC_IbeamProfile&>(o); }
void kbpC_IbeamProfile::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kbpC_IbeamProfile>(r); }
void kbpC_IbeamProfile::CowDtor(void* p) { fw_CowDtor<kbpC_IbeamProfile>(p); }

// The last rule repeats the ones before it; the order of the rules is fixed, so it stays.
void kbpC_IbeamProfile::AssertValid() const {
  kbpC_Assert(h > 0, kbpC_HeightNotPositive);
  kbpC_Assert(t3 > 0, kbpC_WebThicknessNotPositive);
  kbpC_Assert(b1 > 0 || b2 > 0, kbpC_NoFlangeWidth);
  kbpC_Assert(t2 > 0, kbpC_ThicknessTwoNotPositive);
  kbpC_Assert(t1 > 0, kbpC_ThicknessOneNotPositive);
  kbpC_Assert(t1 > 0 && t2 > 0 && t3 > 0, kbpC_ThicknessesNotPositive);
}
