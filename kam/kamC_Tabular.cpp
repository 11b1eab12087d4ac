#include "kam/kamC_Tabular.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kam/kamC_SmoothingTraits.h"
#include "kam/kamC_TableChecks.h"
#include "kam/kamC_assert.h"

kamC_Tabular::kamC_Tabular(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

const kamC_BaselineCorrection& kamC_Tabular::GetBaselineCorrection() const {
  if (baselineCorrection.IsNull()) nex_ThrowCmd("The tabular amplitude has no baseline correction");
  return baselineCorrection.Get();
}
const kamC_BaselineCorrection* kamC_Tabular::FindBaselineCorrection() const {
  return baselineCorrection.IsNull() ? nullptr : &baselineCorrection.Get();
}
kamC_BaselineCorrection* kamC_Tabular::ModifyBaselineCorrection() {
  return baselineCorrection.IsNull() ? nullptr : &baselineCorrection.Get();
}

void kamC_Tabular::AssertValid() const {
  kamC_AssertSmoothing(smooth.value);
  kamC_AssertTimeAmplitudeTable(data);
  if (!baselineCorrection.IsNull()) baselineCorrection.Get().AssertValid();
}

template class fw_PersistentClass<kamC_Tabular, kamC_Amplitude>;
