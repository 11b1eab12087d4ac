#include "kma/kmaC_Ornl.h"

#include "framework/fw_FieldTable.h"
#include "kma/kmaC_assert.h"

kmaC_Ornl::kmaC_Ornl(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_Ornl* kmaC_Ornl::Copy() const { return mem_New<kmaC_Ornl>(*this); }
void kmaC_Ornl::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_Ornl::operator==(const kmaC_Ornl& o) const { return fw_EqualFields(*this, o); }
bool kmaC_Ornl::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_Ornl&>(o); }
void kmaC_Ornl::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_Ornl>(r); }
void kmaC_Ornl::CowDtor(void* p) { fw_CowDtor<kmaC_Ornl>(p); }

// A negative saturation rate would drive the shift away from saturation.
void kmaC_Ornl::AssertValid() const {
  kmaC_Assert(saturationRateParameter >= 0.0, kmaC_HardeningRateBelowMinimum);
}
