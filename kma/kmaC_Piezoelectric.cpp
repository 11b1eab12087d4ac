#include "kma/kmaC_Piezoelectric.h"

#include "framework/fw_FieldTable.h"
#include "kma/kmaC_assert.h"

kmaC_Piezoelectric::kmaC_Piezoelectric(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_Piezoelectric* kmaC_Piezoelectric::Copy() const { return mem_New<kmaC_Piezoelectric>(*this); }
void kmaC_Piezoelectric::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_Piezoelectric::operator==(const kmaC_Piezoelectric& o) const { return fw_EqualFields(*this, o); }
bool kmaC_Piezoelectric::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_Piezoelectric&>(o); }
void kmaC_Piezoelectric::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_Piezoelectric>(r); }
void kmaC_Piezoelectric::CowDtor(void* p) { fw_CowDtor<kmaC_Piezoelectric>(p); }

void kmaC_Piezoelectric::AssertValid() const {
  table.AssertValid();
}
