#include "kbe/kbeC_ConnectorOptions.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kbe/kbeC_Traits.h"
#include "kbe/kbeC_assert.h"
#include "kbe/kbeC_Checks.h"

kbeC_ConnectorOptions::kbeC_ConnectorOptions(const cls_ReadVisitor& r) : uid(r.GetUid()) { fw_ReadFields(*this, r); }

bool kbeC_ConnectorOptions::RateOptionsAtDefaults() const {
  return defaultRateFactor && rateFactor == rateFactorDef() && interpolation == InterpolationEnm::LINEAR;
}

// The comparisons with the defaults are exact on purpose: a value one bit away from the default
// counts as specified.
void kbeC_ConnectorOptions::AssertValid() const {
  if (!useBehRegSettings) {
    if (!regularize && !defaultTolerance) kbeC_Assert(false, kbeC_RegularizeOffWithoutTolerance);
    else kbeC_Assert(!(defaultTolerance && regularization != regularizationDef()), kbeC_DefaultToleranceWithRegularization);
  }
  kbeC_Assert(!(defaultRateFactor && rateFactor != rateFactorDef()), kbeC_DefaultRateFactorWithRateFactor);
  kbeC_Assert(rateFactor > 0 && rateFactor <= 1, kbeC_RateFactorOutOfRange);
}

template class fw_PersistentClass<kbeC_ConnectorOptions, mem_Allocated>;
