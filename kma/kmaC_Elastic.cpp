#include "kma/kmaC_Elastic.h"

#include "kma/kmaC_OptionSlotTraits.h"
#include "kma/kmaC_assert.h"

kmaC_Elastic::kmaC_Elastic(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_Elastic* kmaC_Elastic::Copy() const { return mem_New<kmaC_Elastic>(*this); }
void kmaC_Elastic::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_Elastic::operator==(const kmaC_Elastic& o) const { return fw_EqualFields(*this, o); }
bool kmaC_Elastic::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_Elastic&>(o); }
void kmaC_Elastic::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_Elastic>(r); }
void kmaC_Elastic::CowDtor(void* p) { fw_CowDtor<kmaC_Elastic>(p); }

const kmaC_FailStress& kmaC_Elastic::GetFailStress() const {
  if (failStress.IsNull()) nex_ThrowCmd("The elastic option has no failStress");
  return static_cast<const kmaC_FailStress&>(*failStress.ConstGet());
}

const kmaC_FailStrain& kmaC_Elastic::GetFailStrain() const {
  if (failStrain.IsNull()) nex_ThrowCmd("The elastic option has no failStrain");
  return static_cast<const kmaC_FailStrain&>(*failStrain.ConstGet());
}

// The width of the table is not checked against the type: its consumer decides the layout.
void kmaC_Elastic::AssertValid() const {
  kmaC_Assert(!(noCompression && noTension), kmaC_NoCompressionAndNoTension);
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  if (const kmaC_MaterialOption* strain = failStrain.ConstGet()) strain->AssertValid();
  if (const kmaC_MaterialOption* stress = failStress.ConstGet()) stress->AssertValid();
  table.AssertValid();
}
