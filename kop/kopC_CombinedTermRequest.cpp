#include "kop/kopC_CombinedTermRequest.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kop/kopC_assert.h"

kopC_CombinedTermRequest::kopC_CombinedTermRequest(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

// Weights match the terms of a weighted sum; the number of terms fits the method; a cut-off has
// ordered bounds.
void kopC_CombinedTermRequest::AssertValid() const {
  using M = kopC_CombinedTermRequestMethodEnm;
  const std::size_t n = terms.size();
  kopC_Assert(method != M::WEIGHTED_ADD || weights.size() == n, kopC_TermsWeightsCount);
  switch (method) {
    case M::ADD: case M::MULTIPLY: case M::MINIMUM: case M::MAXIMUM: case M::WEIGHTED_ADD:
      kopC_Assert(n >= 1, kopC_AtLeastOneTerm);
      kopC_Assert(n <= 10, kopC_AtMostTenTerms);
      break;
    case M::SUBTRACT: case M::DIVIDE: case M::ABSOLUTE_DIFFERENCE: case M::NTH_ROOT: case M::NTH_POWER:
      kopC_Assert(n >= 2, kopC_AtLeastTwoTerms);
      kopC_Assert(n <= 2, kopC_AtMostTwoTerms);
      break;
    case M::NORMALIZE: case M::NORMALIZE_FIRST:
      kopC_Assert(n >= 2, kopC_AtLeastTwoTerms);
      kopC_Assert(n <= 4, kopC_AtMostFourTerms);
      break;
    default:
      kopC_Assert(n == 1, kopC_ExactlyOneTerm);
  }
  if (method == M::CUT_OFF) {
    kopC_Assert(lowCutOff >= 0, kopC_LowCutOffNegative);
    kopC_Assert(highCutOff == kopC_kUnset || highCutOff >= lowCutOff, kopC_HighCutOffBelowLow);
  }
}

template class fw_PersistentClass<kopC_CombinedTermRequest, kopC_Request>;
