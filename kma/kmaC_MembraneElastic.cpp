#include "kma/kmaC_MembraneElastic.h"

#include "framework/fw_FieldTable.h"
#include "kma/kmaC_assert.h"

kmaC_MembraneElastic::kmaC_MembraneElastic(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_MembraneElastic* kmaC_MembraneElastic::Copy() const { return mem_New<kmaC_MembraneElastic>(*this); }
void kmaC_MembraneElastic::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_MembraneElastic::operator==(const kmaC_MembraneElastic& o) const { return fw_EqualFields(*this, o); }
bool kmaC_MembraneElastic::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_MembraneElastic&>(o); }
void kmaC_MembraneElastic::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_MembraneElastic>(r); }
void kmaC_MembraneElastic::CowDtor(void* p) { fw_CowDtor<kmaC_MembraneElastic>(p); }

void kmaC_MembraneElastic::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  table.AssertValid();
}
