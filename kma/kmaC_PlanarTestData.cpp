#include "kma/kmaC_PlanarTestData.h"

#include "framework/fw_FieldTable.h"
#include "kma/kmaC_assert.h"

kmaC_PlanarTestData::kmaC_PlanarTestData(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_PlanarTestData* kmaC_PlanarTestData::Copy() const { return mem_New<kmaC_PlanarTestData>(*this); }
void kmaC_PlanarTestData::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_PlanarTestData::operator==(const kmaC_PlanarTestData& o) const { return fw_EqualFields(*this, o); }
bool kmaC_PlanarTestData::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_PlanarTestData&>(o); }
void kmaC_PlanarTestData::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_PlanarTestData>(r); }
void kmaC_PlanarTestData::CowDtor(void* p) { fw_CowDtor<kmaC_PlanarTestData>(p); }

void kmaC_PlanarTestData::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  table.AssertValid();
}
