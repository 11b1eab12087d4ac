#include "kbe/kbeC_ConnectorOptions.h"

#include "framework/fw_FieldTable.h"
#include "kbe/kbeC_Traits.h"
#include "kbe/kbeC_assert.h"
#include "kbe/kbeC_Checks.h"

kbeC_ConnectorOptions::kbeC_ConnectorOptions(const cls_ReadVisitor& r) : uid(r.GetUid()) { fw_ReadFields(*this, r); }
void kbeC_ConnectorOptions::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kbeC_ConnectorOptions* kbeC_ConnectorOptions::Copy() const { return new kbeC_ConnectorOptions(*this); }
bool kbeC_ConnectorOptions::operator==(const kbeC_ConnectorOptions& o) const { return fw_EqualFields(*this, o); }
void kbeC_ConnectorOptions::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kbeC_ConnectorOptions>(r); }
void kbeC_ConnectorOptions::CowDtor(void* p) { fw_CowDtor<kbeC_ConnectorOptions>(p); }

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
