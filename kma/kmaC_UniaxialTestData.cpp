#include "kma/kmaC_UniaxialTestData.h"

#include "framework/fw_FieldTable.h"
#include "kma/kmaC_assert.h"

kmaC_UniaxialTestData::kmaC_UniaxialTestData(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_UniaxialTestData* kmaC_UniaxialTestData::Copy() const { return mem_New<kmaC_UniaxialTestData>(*this); }
void kmaC_UniaxialTestData::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_UniaxialTestData::operator==(const kmaC_UniaxialTestData& o) const { return fw_EqualFields(*this, o); }
bool kmaC_UniaxialTestData::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_UniaxialTestData&>(o); }
void kmaC_UniaxialTestData::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_UniaxialTestData>(r); }
void kmaC_UniaxialTestData::CowDtor(void* p) { fw_CowDtor<kmaC_UniaxialTestData>(p); }

void kmaC_UniaxialTestData::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  table.AssertValid();
}
