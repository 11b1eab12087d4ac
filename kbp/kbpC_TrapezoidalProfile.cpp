#include "kbp/kbpC_TrapezoidalProfile.h"

#include "framework/fw_FieldTable.h"
#include "kbp/kbpC_assert.h"

kbpC_TrapezoidalProfile::kbpC_TrapezoidalProfile(const cls_ReadVisitor& reader) : kbpC_BeamProfile(reader) { fw_ReadFields(*this, reader); }
void kbpC_TrapezoidalProfile::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kbpC_TrapezoidalProfile* kbpC_TrapezoidalProfile::Copy() const { return new kbpC_TrapezoidalProfile(*this); }
bool kbpC_TrapezoidalProfile::operator==(const kbpC_TrapezoidalProfile& o) const { return fw_EqualFields(*this, o); }
bool kbpC_TrapezoidalProfile::SameAs(const kbpC_BeamProfile& o) const { return *this == static_cast<const kbpC_TrapezoidalProfile&>(o); }
void kbpC_TrapezoidalProfile::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kbpC_TrapezoidalProfile>(r); }
void kbpC_TrapezoidalProfile::CowDtor(void* p) { fw_CowDtor<kbpC_TrapezoidalProfile>(p); }

void kbpC_TrapezoidalProfile::AssertValid() const {
  kbpC_Assert(a > 0, kbpC_DimensionANotPositive);
  kbpC_Assert(b > 0, kbpC_DimensionBNotPositive);
  kbpC_Assert(c > 0, kbpC_DimensionCNotPositive);
}
