#include "kma/kmaC_BiaxialTestData.h"

#include "framework/fw_FieldTable.h"
#include "kma/kmaC_assert.h"

kmaC_BiaxialTestData::kmaC_BiaxialTestData(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_BiaxialTestData* kmaC_BiaxialTestData::Copy() const { return mem_New<kmaC_BiaxialTestData>(*this); }
void kmaC_BiaxialTestData::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_BiaxialTestData::operator==(const kmaC_BiaxialTestData& o) const { return fw_EqualFields(*this, o); }
bool kmaC_BiaxialTestData::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_BiaxialTestData&>(o); }
void kmaC_BiaxialTestData::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_BiaxialTestData>(r); }
void kmaC_BiaxialTestData::CowDtor(void* p) { fw_CowDtor<kmaC_BiaxialTestData>(p); }

void kmaC_BiaxialTestData::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  table.AssertValid();
}
