#include "kma/kmaC_CapCreep.h"

#include "framework/fw_FieldTable.h"
#include "kma/kmaC_assert.h"

kmaC_CapCreep::kmaC_CapCreep(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_CapCreep* kmaC_CapCreep::Copy() const { return mem_New<kmaC_CapCreep>(*this); }
void kmaC_CapCreep::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_CapCreep::operator==(const kmaC_CapCreep& o) const { return fw_EqualFields(*this, o); }
bool kmaC_CapCreep::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_CapCreep&>(o); }
void kmaC_CapCreep::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_CapCreep>(r); }
void kmaC_CapCreep::CowDtor(void* p) { fw_CowDtor<kmaC_CapCreep>(p); }

void kmaC_CapCreep::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  if (law != LawEnm::USER) table.AssertValid();
}
