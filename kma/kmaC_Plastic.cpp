#include "kma/kmaC_Plastic.h"

#include "kma/kmaC_OptionSlotTraits.h"
#include "kma/kmaC_assert.h"

kmaC_Plastic::kmaC_Plastic(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_Plastic* kmaC_Plastic::Copy() const { return mem_New<kmaC_Plastic>(*this); }
void kmaC_Plastic::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_Plastic::operator==(const kmaC_Plastic& o) const { return fw_EqualFields(*this, o); }
bool kmaC_Plastic::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_Plastic&>(o); }
void kmaC_Plastic::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_Plastic>(r); }
void kmaC_Plastic::CowDtor(void* p) { fw_CowDtor<kmaC_Plastic>(p); }

void kmaC_Plastic::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  for (const kmaC_MaterialOption* sub : {rateDependent.ConstGet(), potential.ConstGet(), cyclicHardening.ConstGet(),
                                         ornl.ConstGet(), cycledPlastic.ConstGet(), annealTemperature.ConstGet()})
    if (sub) sub->AssertValid();
  if (const kmaC_MaterialOption* failure = tensileFailure.ConstGet()) {
    if (hardening != HardeningEnm::ISOTROPIC && hardening != HardeningEnm::JOHNSON_COOK)
      nex_PrimError(atr_translate(kTensileFailureMessage)).Throw(kSourceFile, kTensileFailureLine);
    failure->AssertValid();
  }
  if (hardening != HardeningEnm::USER) table.AssertValid();
  const bool firstYieldAtZero =
      hardening == HardeningEnm::ISOTROPIC || hardening == HardeningEnm::KINEMATIC ||
      hardening == HardeningEnm::MULTILINEAR_KINEMATIC ||
      (hardening == HardeningEnm::COMBINED && (dataType == DataTypeEnm::HALF_CYCLE || dataType == DataTypeEnm::STABILIZED));
  // A table too small to hold the cell cannot show a zero plastic strain at first yield.
  if (firstYieldAtZero) kmaC_Assert(table.Rows() >= 1 && table.Columns() >= 2 && table(0, 1) == 0.0, kmaC_FirstYieldStrainNotZero);
  if (hardening == HardeningEnm::ISOTROPIC && rate) kmaC_Assert(table.Columns() >= 3, kmaC_ConstituentTableIncomplete);
}
