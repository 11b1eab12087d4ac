#include "kma/kmaC_BrittleCracking.h"

#include "kma/kmaC_OptionSlotTraits.h"
#include "kma/kmaC_assert.h"

kmaC_BrittleCracking::kmaC_BrittleCracking(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_BrittleCracking* kmaC_BrittleCracking::Copy() const { return mem_New<kmaC_BrittleCracking>(*this); }
void kmaC_BrittleCracking::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_BrittleCracking::operator==(const kmaC_BrittleCracking& o) const { return fw_EqualFields(*this, o); }
bool kmaC_BrittleCracking::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_BrittleCracking&>(o); }
void kmaC_BrittleCracking::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_BrittleCracking>(r); }
void kmaC_BrittleCracking::CowDtor(void* p) { fw_CowDtor<kmaC_BrittleCracking>(p); }

void kmaC_BrittleCracking::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  if (const kmaC_MaterialOption* sub = shearRetention.ConstGet()) sub->AssertValid();
  table.AssertValid();
}
