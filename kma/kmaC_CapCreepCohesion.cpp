#include "kma/kmaC_CapCreepCohesion.h"

#include "framework/fw_FieldTable.h"
#include "kma/kmaC_assert.h"

kmaC_CapCreepCohesion::kmaC_CapCreepCohesion(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_CapCreepCohesion* kmaC_CapCreepCohesion::Copy() const { return mem_New<kmaC_CapCreepCohesion>(*this); }
void kmaC_CapCreepCohesion::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_CapCreepCohesion::operator==(const kmaC_CapCreepCohesion& o) const { return fw_EqualFields(*this, o); }
bool kmaC_CapCreepCohesion::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_CapCreepCohesion&>(o); }
void kmaC_CapCreepCohesion::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_CapCreepCohesion>(r); }
void kmaC_CapCreepCohesion::CowDtor(void* p) { fw_CowDtor<kmaC_CapCreepCohesion>(p); }

void kmaC_CapCreepCohesion::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  if (law != LawEnm::USER) table.AssertValid();
}
