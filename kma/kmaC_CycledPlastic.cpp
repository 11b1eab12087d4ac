#include "kma/kmaC_CycledPlastic.h"

#include "framework/fw_FieldTable.h"
#include "kma/kmaC_assert.h"

kmaC_CycledPlastic::kmaC_CycledPlastic(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_CycledPlastic* kmaC_CycledPlastic::Copy() const { return mem_New<kmaC_CycledPlastic>(*this); }
void kmaC_CycledPlastic::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_CycledPlastic::operator==(const kmaC_CycledPlastic& o) const { return fw_EqualFields(*this, o); }
bool kmaC_CycledPlastic::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_CycledPlastic&>(o); }
void kmaC_CycledPlastic::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_CycledPlastic>(r); }
void kmaC_CycledPlastic::CowDtor(void* p) { fw_CowDtor<kmaC_CycledPlastic>(p); }

void kmaC_CycledPlastic::AssertValid() const {
  table.AssertValid();
}
