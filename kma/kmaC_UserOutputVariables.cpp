#include "kma/kmaC_UserOutputVariables.h"

#include "framework/fw_FieldTable.h"
#include "kma/kmaC_assert.h"

kmaC_UserOutputVariables::kmaC_UserOutputVariables(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_UserOutputVariables* kmaC_UserOutputVariables::Copy() const { return mem_New<kmaC_UserOutputVariables>(*this); }
void kmaC_UserOutputVariables::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_UserOutputVariables::operator==(const kmaC_UserOutputVariables& o) const { return fw_EqualFields(*this, o); }
bool kmaC_UserOutputVariables::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_UserOutputVariables&>(o); }
void kmaC_UserOutputVariables::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_UserOutputVariables>(r); }
void kmaC_UserOutputVariables::CowDtor(void* p) { fw_CowDtor<kmaC_UserOutputVariables>(p); }

void kmaC_UserOutputVariables::AssertValid() const {
  kmaC_Assert(n >= 0, kmaC_InvalidStateVariable);
}
