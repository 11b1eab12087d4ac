#include "kma/kmaC_GapRadiation.h"

#include "framework/fw_FieldTable.h"
#include "kma/kmaC_assert.h"

kmaC_GapRadiation::kmaC_GapRadiation(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_GapRadiation* kmaC_GapRadiation::Copy() const { return mem_New<kmaC_GapRadiation>(*this); }
void kmaC_GapRadiation::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_GapRadiation::operator==(const kmaC_GapRadiation& o) const { return fw_EqualFields(*this, o); }
bool kmaC_GapRadiation::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_GapRadiation&>(o); }
void kmaC_GapRadiation::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_GapRadiation>(r); }
void kmaC_GapRadiation::CowDtor(void* p) { fw_CowDtor<kmaC_GapRadiation>(p); }

void kmaC_GapRadiation::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  table.AssertValid();
}
