#include "kma/kmaC_Electrolyte.h"

#include "framework/fw_FieldTable.h"
#include "kma/kmaC_assert.h"

kmaC_Electrolyte::kmaC_Electrolyte(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_Electrolyte* kmaC_Electrolyte::Copy() const { return mem_New<kmaC_Electrolyte>(*this); }
void kmaC_Electrolyte::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_Electrolyte::operator==(const kmaC_Electrolyte& o) const { return fw_EqualFields(*this, o); }
bool kmaC_Electrolyte::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_Electrolyte&>(o); }
void kmaC_Electrolyte::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_Electrolyte>(r); }
void kmaC_Electrolyte::CowDtor(void* p) { fw_CowDtor<kmaC_Electrolyte>(p); }

void kmaC_Electrolyte::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  table.AssertValid();
}
