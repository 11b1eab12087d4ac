#include "kma/kmaC_AcousticMedium.h"

#include "framework/fw_FieldTable.h"
#include "kma/kmaC_assert.h"

kmaC_AcousticMedium::kmaC_AcousticMedium(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_AcousticMedium* kmaC_AcousticMedium::Copy() const { return mem_New<kmaC_AcousticMedium>(*this); }
void kmaC_AcousticMedium::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_AcousticMedium::operator==(const kmaC_AcousticMedium& o) const { return fw_EqualFields(*this, o); }
bool kmaC_AcousticMedium::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_AcousticMedium&>(o); }
void kmaC_AcousticMedium::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_AcousticMedium>(r); }
void kmaC_AcousticMedium::CowDtor(void* p) { fw_CowDtor<kmaC_AcousticMedium>(p); }

void kmaC_AcousticMedium::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  table.AssertValid();
}
