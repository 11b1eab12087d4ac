#include "kma/kmaC_EosShear.h"

#include "framework/fw_FieldTable.h"
#include "kma/kmaC_assert.h"

kmaC_EosShear::kmaC_EosShear(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_EosShear* kmaC_EosShear::Copy() const { return mem_New<kmaC_EosShear>(*this); }
void kmaC_EosShear::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_EosShear::operator==(const kmaC_EosShear& o) const { return fw_EqualFields(*this, o); }
bool kmaC_EosShear::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_EosShear&>(o); }
void kmaC_EosShear::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_EosShear>(r); }
void kmaC_EosShear::CowDtor(void* p) { fw_CowDtor<kmaC_EosShear>(p); }

void kmaC_EosShear::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  table.AssertValid();
}
