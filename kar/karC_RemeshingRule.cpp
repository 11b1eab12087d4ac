#include "kar/karC_RemeshingRule.h"

#include <cmath>
#include <set>
#include <string>

#include "framework/fw_PersistentClassImpl.h"
#include "kar/karC_assert.h"

karC_RemeshingRule::karC_RemeshingRule(const cls_ReadVisitor& r) : uid(r.GetUid()) { fw_ReadFields(*this, r); }

namespace {
bool karC_IsSet(double v) { return v != karC_kUnspecified; }
}  // namespace

// What the rule says about itself, in the order a user fills it in: where and when, what drives
// it, then the sizes. Comparisons are written so that a NaN fails the rule it reaches. The
// frequency is checked whatever the output frequency, so that switching to every n increments
// never brings a bad count to light later.
void karC_RemeshingRule::AssertValid() const {
  if (suppress) return;
  karC_Assert(!stepName.empty(), karC_StepMissing);
  karC_Assert(!region.Name().empty(), karC_RegionMissing);
  karC_Assert(variables.size() > 0, karC_VariablesMissing);
  std::set<std::string> seen;
  for (const cow_String& v : variables) karC_Assert(seen.insert(v.str()).second, karC_VariableRepeated);
  karC_Assert(frequency > 0, karC_FrequencyNotPositive);
  karC_Assert(errorTargets.size() == 0 || errorTargets.size() == variables.size(), karC_ErrorTargetCountMismatch);
  for (double t : errorTargets) karC_Assert(t > 0, karC_ErrorTargetNotPositive);
  karC_Assert(!karC_IsSet(refinementFactor) || (refinementFactor > 0 && refinementFactor <= 1),
              karC_RefinementFactorOutOfRange);
  karC_Assert(!karC_IsSet(coarseningFactor) || coarseningFactor >= 1, karC_CoarseningFactorOutOfRange);
  karC_Assert(!karC_IsSet(minElementSize) || minElementSize > 0, karC_MinElementSizeNotPositive);
  karC_Assert(!karC_IsSet(maxElementSize) || maxElementSize > 0, karC_MaxElementSizeNotPositive);
  karC_Assert(!karC_IsSet(minElementSize) || !karC_IsSet(maxElementSize) || minElementSize < maxElementSize,
              karC_ElementSizeOrder);
  karC_Assert(elementCountLimit.value > 0, karC_ElementCountLimitNotPositive);
}

template class fw_PersistentClass<karC_RemeshingRule, mem_Allocated>;
