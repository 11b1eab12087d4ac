#include "kma/kmaC_Plastic.h"

#include "framework/fw_PersistentClassImpl.h"

#include "kma/kmaC_OptionSlotTraits.h"
#include "kma/kmaC_assert.h"

kmaC_Plastic::kmaC_Plastic(const cls_ReadVisitor& r) : fw_PersistentClass(r) { fw_ReadFields(*this, r); }

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

template class fw_PersistentClass<kmaC_Plastic, kmaC_MaterialOption>;
