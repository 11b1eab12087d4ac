#include "kma/kmaC_PlasticityCorrection.h"

#include "framework/fw_FieldTable.h"
#include "kma/kmaC_assert.h"

kmaC_PlasticityCorrection::kmaC_PlasticityCorrection(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_PlasticityCorrection* kmaC_PlasticityCorrection::Copy() const { return mem_New<kmaC_PlasticityCorrection>(*this); }
void kmaC_PlasticityCorrection::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_PlasticityCorrection::operator==(const kmaC_PlasticityCorrection& o) const { return fw_EqualFields(*this, o); }
bool kmaC_PlasticityCorrection::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_PlasticityCorrection&>(o); }
void kmaC_PlasticityCorrection::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_PlasticityCorrection>(r); }
void kmaC_PlasticityCorrection::CowDtor(void* p) { fw_CowDtor<kmaC_PlasticityCorrection>(p); }

void kmaC_PlasticityCorrection::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  table.AssertValid();
}
