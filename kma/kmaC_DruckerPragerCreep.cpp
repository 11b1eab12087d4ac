#include "kma/kmaC_DruckerPragerCreep.h"

#include "framework/fw_FieldTable.h"
#include "kma/kmaC_assert.h"

kmaC_DruckerPragerCreep::kmaC_DruckerPragerCreep(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_DruckerPragerCreep* kmaC_DruckerPragerCreep::Copy() const { return mem_New<kmaC_DruckerPragerCreep>(*this); }
void kmaC_DruckerPragerCreep::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_DruckerPragerCreep::operator==(const kmaC_DruckerPragerCreep& o) const { return fw_EqualFields(*this, o); }
bool kmaC_DruckerPragerCreep::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_DruckerPragerCreep&>(o); }
void kmaC_DruckerPragerCreep::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_DruckerPragerCreep>(r); }
void kmaC_DruckerPragerCreep::CowDtor(void* p) { fw_CowDtor<kmaC_DruckerPragerCreep>(p); }

void kmaC_DruckerPragerCreep::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  if (law != LawEnm::USER) table.AssertValid();
}
