#include "kma/kmaC_TensileFailure.h"

#include "framework/fw_FieldTable.h"
#include "kma/kmaC_assert.h"

kmaC_TensileFailure::kmaC_TensileFailure(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_TensileFailure* kmaC_TensileFailure::Copy() const { return mem_New<kmaC_TensileFailure>(*this); }
void kmaC_TensileFailure::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_TensileFailure::operator==(const kmaC_TensileFailure& o) const { return fw_EqualFields(*this, o); }
bool kmaC_TensileFailure::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_TensileFailure&>(o); }
void kmaC_TensileFailure::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_TensileFailure>(r); }
void kmaC_TensileFailure::CowDtor(void* p) { fw_CowDtor<kmaC_TensileFailure>(p); }

void kmaC_TensileFailure::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  table.AssertValid();
}
