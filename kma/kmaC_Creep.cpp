#include "kma/kmaC_Creep.h"

#include "framework/fw_FieldTable.h"
#include "kma/kmaC_assert.h"

kmaC_Creep::kmaC_Creep(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_Creep* kmaC_Creep::Copy() const { return mem_New<kmaC_Creep>(*this); }
void kmaC_Creep::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_Creep::operator==(const kmaC_Creep& o) const { return fw_EqualFields(*this, o); }
bool kmaC_Creep::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_Creep&>(o); }
void kmaC_Creep::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_Creep>(r); }
void kmaC_Creep::CowDtor(void* p) { fw_CowDtor<kmaC_Creep>(p); }

void kmaC_Creep::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  if (law != LawEnm::USER) table.AssertValid();
}
