#include "kma/kmaC_UserMaterial.h"

#include "framework/fw_FieldTable.h"
#include "kma/kmaC_assert.h"

kmaC_UserMaterial::kmaC_UserMaterial(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_UserMaterial* kmaC_UserMaterial::Copy() const { return mem_New<kmaC_UserMaterial>(*this); }
void kmaC_UserMaterial::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_UserMaterial::operator==(const kmaC_UserMaterial& o) const { return fw_EqualFields(*this, o); }
bool kmaC_UserMaterial::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_UserMaterial&>(o); }
void kmaC_UserMaterial::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_UserMaterial>(r); }
void kmaC_UserMaterial::CowDtor(void* p) { fw_CowDtor<kmaC_UserMaterial>(p); }

void kmaC_UserMaterial::AssertValid() const {
  mechanicalConstants.AssertValid();
  thermalConstants.AssertValid();
}
