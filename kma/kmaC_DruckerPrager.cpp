#include "kma/kmaC_DruckerPrager.h"

#include "kma/kmaC_OptionSlotTraits.h"
#include "kma/kmaC_assert.h"

kmaC_DruckerPrager::kmaC_DruckerPrager(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_DruckerPrager* kmaC_DruckerPrager::Copy() const { return mem_New<kmaC_DruckerPrager>(*this); }
void kmaC_DruckerPrager::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_DruckerPrager::operator==(const kmaC_DruckerPrager& o) const { return fw_EqualFields(*this, o); }
bool kmaC_DruckerPrager::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_DruckerPrager&>(o); }
void kmaC_DruckerPrager::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_DruckerPrager>(r); }
void kmaC_DruckerPrager::CowDtor(void* p) { fw_CowDtor<kmaC_DruckerPrager>(p); }

void kmaC_DruckerPrager::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  kmaC_Assert(eccentricity >= 0.0, kmaC_EccentricityBelowMinimum);
  if (const kmaC_MaterialOption* sub = druckerPragerCreep.ConstGet()) sub->AssertValid();
  table.AssertValid();
}
