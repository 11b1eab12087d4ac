#include "kma/kmaC_VolumetricTestData.h"

#include "framework/fw_FieldTable.h"
#include "kma/kmaC_assert.h"

kmaC_VolumetricTestData::kmaC_VolumetricTestData(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_VolumetricTestData* kmaC_VolumetricTestData::Copy() const { return mem_New<kmaC_VolumetricTestData>(*this); }
void kmaC_VolumetricTestData::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_VolumetricTestData::operator==(const kmaC_VolumetricTestData& o) const { return fw_EqualFields(*this, o); }
bool kmaC_VolumetricTestData::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_VolumetricTestData&>(o); }
void kmaC_VolumetricTestData::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_VolumetricTestData>(r); }
void kmaC_VolumetricTestData::CowDtor(void* p) { fw_CowDtor<kmaC_VolumetricTestData>(p); }

void kmaC_VolumetricTestData::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  kmaC_Assert(poissonRatio >= -1.0, kmaC_PoissonBelowMinimum);
  kmaC_Assert(poissonRatio <= 0.5, kmaC_PoissonAboveMaximum);
  if (volumetricResponse == VolumetricResponseEnm::VOLUMETRIC_DATA) table.AssertValid();
}
