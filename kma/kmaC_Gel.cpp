#include "kma/kmaC_Gel.h"

#include "framework/fw_FieldTable.h"
#include "kma/kmaC_assert.h"

kmaC_Gel::kmaC_Gel(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_Gel* kmaC_Gel::Copy() const { return mem_New<kmaC_Gel>(*this); }
void kmaC_Gel::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_Gel::operator==(const kmaC_Gel& o) const { return fw_EqualFields(*this, o); }
bool kmaC_Gel::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_Gel&>(o); }
void kmaC_Gel::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_Gel>(r); }
void kmaC_Gel::CowDtor(void* p) { fw_CowDtor<kmaC_Gel>(p); }

void kmaC_Gel::AssertValid() const {
  table.AssertValid();
}
