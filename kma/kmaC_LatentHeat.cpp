#include "kma/kmaC_LatentHeat.h"

#include "framework/fw_FieldTable.h"
#include "kma/kmaC_assert.h"

kmaC_LatentHeat::kmaC_LatentHeat(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_LatentHeat* kmaC_LatentHeat::Copy() const { return mem_New<kmaC_LatentHeat>(*this); }
void kmaC_LatentHeat::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_LatentHeat::operator==(const kmaC_LatentHeat& o) const { return fw_EqualFields(*this, o); }
bool kmaC_LatentHeat::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_LatentHeat&>(o); }
void kmaC_LatentHeat::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_LatentHeat>(r); }
void kmaC_LatentHeat::CowDtor(void* p) { fw_CowDtor<kmaC_LatentHeat>(p); }

void kmaC_LatentHeat::AssertValid() const {
  table.AssertValid();
}
