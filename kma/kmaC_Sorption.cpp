#include "kma/kmaC_Sorption.h"

#include "framework/fw_FieldTable.h"
#include "kma/kmaC_assert.h"

kmaC_Sorption::kmaC_Sorption(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_Sorption* kmaC_Sorption::Copy() const { return mem_New<kmaC_Sorption>(*this); }
void kmaC_Sorption::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_Sorption::operator==(const kmaC_Sorption& o) const { return fw_EqualFields(*this, o); }
bool kmaC_Sorption::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_Sorption&>(o); }
void kmaC_Sorption::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_Sorption>(r); }
void kmaC_Sorption::CowDtor(void* p) { fw_CowDtor<kmaC_Sorption>(p); }

void kmaC_Sorption::AssertValid() const {
  table.AssertValid();
}
