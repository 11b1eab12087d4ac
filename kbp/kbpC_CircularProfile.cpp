#include "kbp/kbpC_CircularProfile.h"

#include "framework/fw_FieldTable.h"
#include "kbp/kbpC_assert.h"

kbpC_CircularProfile::kbpC_CircularProfile(const cls_ReadVisitor& reader) : kbpC_BeamProfile(reader) { fw_ReadFields(*this, reader); }
void kbpC_CircularProfile::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kbpC_CircularProfile* kbpC_CircularProfile::Copy() const { return new kbpC_CircularProfile(*this); }
bool kbpC_CircularProfile::operator==(const kbpC_CircularProfile& o) const { return fw_EqualFields(*this, o); }
bool kbpC_CircularProfile::SameAs(const kbpC_BeamProfile& o) const { return *this == static_cast<const kbpC_CircularProfile&>(o); }
void kbpC_CircularProfile::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kbpC_CircularProfile>(r); }
void kbpC_CircularProfile::CowDtor(void* p) { fw_CowDtor<kbpC_CircularProfile>(p); }

void kbpC_CircularProfile::AssertValid() const {
  kbpC_Assert(r > 0, kbpC_RadiusNotPositive);
}
