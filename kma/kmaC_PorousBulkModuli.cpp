#include "kma/kmaC_PorousBulkModuli.h"

#include "framework/fw_FieldTable.h"
#include "kma/kmaC_assert.h"

kmaC_PorousBulkModuli::kmaC_PorousBulkModuli(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_PorousBulkModuli* kmaC_PorousBulkModuli::Copy() const { return mem_New<kmaC_PorousBulkModuli>(*this); }
void kmaC_PorousBulkModuli::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_PorousBulkModuli::operator==(const kmaC_PorousBulkModuli& o) const { return fw_EqualFields(*this, o); }
bool kmaC_PorousBulkModuli::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_PorousBulkModuli&>(o); }
void kmaC_PorousBulkModuli::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_PorousBulkModuli>(r); }
void kmaC_PorousBulkModuli::CowDtor(void* p) { fw_CowDtor<kmaC_PorousBulkModuli>(p); }

void kmaC_PorousBulkModuli::AssertValid() const {
  table.AssertValid();
}
