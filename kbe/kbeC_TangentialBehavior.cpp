#include "kbe/kbeC_TangentialBehavior.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kbe/kbeC_Traits.h"
#include "kbe/kbeC_assert.h"
#include "kbe/kbeC_Checks.h"

kbeC_TangentialBehavior::kbeC_TangentialBehavior(const cls_ReadVisitor& r) : uid(r.GetUid()) { fw_ReadFields(*this, r); }

// The table is read column by column: the friction coefficient first, then the slip rate (with
// slip-rate dependency), then the contact pressure (with pressure dependency).
void kbeC_TangentialBehavior::AssertValid() const {
  const std::size_t rows = table.Rows(), cols = rows == 0 ? 0 : table.Columns();
  if (formulation == FormulationEnm::PENALTY) {
    const std::size_t width = slipRateDependency ? 2 : 1;
    kbeC_Assert(cols > 0, kbeC_MissingFrictionCoefficient);
    kbeC_Assert(cols >= width, kbeC_FrictionTableIncomplete);
    const std::size_t pressure = slipRateDependency ? 2 : 1;
    for (std::size_t r = 0; r < rows; ++r) {
      kbeC_Assert(table(r, 0) >= 0, kbeC_FrictionCoefficientNegative);
      if (slipRateDependency) kbeC_Assert(table(r, 1) >= 0, kbeC_SlipRateNegative);
      if (pressureDependency && pressure < cols) kbeC_Assert(table(r, pressure) >= 0, kbeC_PressureNegative);
    }
    kbeC_Assert(shearStressLimit > 0, kbeC_ShearStressLimitNotPositive);
  } else if (exponentialDecayDefinition == ExponentialDecayDefinitionEnm::COEFFICIENTS) {
    kbeC_Assert(cols >= 3, kbeC_MissingDecayCoefficient);
    for (std::size_t c = 0; c + 1 < cols; ++c) kbeC_Assert(table(0, c) >= 0, kbeC_FrictionCoefficientNegative);
    kbeC_Assert(table(0, 0) >= table(0, 1), kbeC_StaticBelowKinetic);
    kbeC_Assert(table(0, 2) >= 0, kbeC_DecayCoefficientNegative);
  } else {
    kbeC_Assert(cols >= 2, kbeC_MissingFrictionCoefficient);
    kbeC_Assert(cols >= 3, kbeC_MissingSlipRate);
    kbeC_Assert(table(0, 2) > 0, kbeC_TestSlipRateNotPositive);
  }
  if (maximumElasticSlip == MaximumElasticSlipEnm::FRACTION) kbeC_Assert(fraction > 0, kbeC_SlipFractionNotPositive);
  else kbeC_Assert(absoluteDistance > 0, kbeC_ElasticSlipDistanceNotPositive);
}

template class fw_PersistentClass<kbeC_TangentialBehavior, mem_Allocated>;
