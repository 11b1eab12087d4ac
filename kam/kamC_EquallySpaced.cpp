#include "kam/kamC_EquallySpaced.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kam/kamC_SmoothingTraits.h"
#include "kam/kamC_TableChecks.h"
#include "kam/kamC_assert.h"

kamC_EquallySpaced::kamC_EquallySpaced(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

const kamC_BaselineCorrection& kamC_EquallySpaced::GetBaselineCorrection() const {
  if (baselineCorrection.IsNull()) nex_ThrowCmd("The equally spaced amplitude has no baseline correction");
  return baselineCorrection.Get();
}
const kamC_BaselineCorrection* kamC_EquallySpaced::FindBaselineCorrection() const {
  return baselineCorrection.IsNull() ? nullptr : &baselineCorrection.Get();
}
kamC_BaselineCorrection* kamC_EquallySpaced::ModifyBaselineCorrection() {
  return baselineCorrection.IsNull() ? nullptr : &baselineCorrection.Get();
}

void kamC_EquallySpaced::AssertValid() const {
  kamC_AssertSmoothing(smooth.value);
  kamC_Assert(fixedInterval > 0, kamC_FixedIntervalNotPositive);
  kamC_Assert(data.size() >= 2, kamC_TooFewRows);
  if (!baselineCorrection.IsNull()) baselineCorrection.Get().AssertValid();
}

template class fw_PersistentClass<kamC_EquallySpaced, kamC_Amplitude>;
