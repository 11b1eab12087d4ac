#include "kma/kmaC_GapFlow.h"

#include "framework/fw_FieldTable.h"
#include "kma/kmaC_assert.h"

kmaC_GapFlow::kmaC_GapFlow(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_GapFlow* kmaC_GapFlow::Copy() const { return mem_New<kmaC_GapFlow>(*this); }
void kmaC_GapFlow::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_GapFlow::operator==(const kmaC_GapFlow& o) const { return fw_EqualFields(*this, o); }
bool kmaC_GapFlow::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_GapFlow&>(o); }
void kmaC_GapFlow::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_GapFlow>(r); }
void kmaC_GapFlow::CowDtor(void* p) { fw_CowDtor<kmaC_GapFlow>(p); }

void kmaC_GapFlow::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  table.AssertValid();
}
