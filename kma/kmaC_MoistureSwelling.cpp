#include "kma/kmaC_MoistureSwelling.h"

#include "framework/fw_FieldTable.h"
#include "kma/kmaC_assert.h"

kmaC_MoistureSwelling::kmaC_MoistureSwelling(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_MoistureSwelling* kmaC_MoistureSwelling::Copy() const { return mem_New<kmaC_MoistureSwelling>(*this); }
void kmaC_MoistureSwelling::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_MoistureSwelling::operator==(const kmaC_MoistureSwelling& o) const { return fw_EqualFields(*this, o); }
bool kmaC_MoistureSwelling::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_MoistureSwelling&>(o); }
void kmaC_MoistureSwelling::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_MoistureSwelling>(r); }
void kmaC_MoistureSwelling::CowDtor(void* p) { fw_CowDtor<kmaC_MoistureSwelling>(p); }

void kmaC_MoistureSwelling::AssertValid() const {
  table.AssertValid();
}
