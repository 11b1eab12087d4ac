#include "kma/kmaC_SpecificHeat.h"

#include "framework/fw_FieldTable.h"
#include "kma/kmaC_assert.h"

kmaC_SpecificHeat::kmaC_SpecificHeat(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_SpecificHeat* kmaC_SpecificHeat::Copy() const { return mem_New<kmaC_SpecificHeat>(*this); }
void kmaC_SpecificHeat::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_SpecificHeat::operator==(const kmaC_SpecificHeat& o) const { return fw_EqualFields(*this, o); }
bool kmaC_SpecificHeat::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_SpecificHeat&>(o); }
void kmaC_SpecificHeat::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_SpecificHeat>(r); }
void kmaC_SpecificHeat::CowDtor(void* p) { fw_CowDtor<kmaC_SpecificHeat>(p); }

void kmaC_SpecificHeat::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  table.AssertValid();
}
