#include "kma/kmaC_CyclicHardening.h"

#include "framework/fw_FieldTable.h"
#include "kma/kmaC_assert.h"

kmaC_CyclicHardening::kmaC_CyclicHardening(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_CyclicHardening* kmaC_CyclicHardening::Copy() const { return mem_New<kmaC_CyclicHardening>(*this); }
void kmaC_CyclicHardening::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_CyclicHardening::operator==(const kmaC_CyclicHardening& o) const { return fw_EqualFields(*this, o); }
bool kmaC_CyclicHardening::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_CyclicHardening&>(o); }
void kmaC_CyclicHardening::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_CyclicHardening>(r); }
void kmaC_CyclicHardening::CowDtor(void* p) { fw_CowDtor<kmaC_CyclicHardening>(p); }

void kmaC_CyclicHardening::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  table.AssertValid();
}
