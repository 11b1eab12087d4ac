#include "kam/kamC_Tabular.h"

#include "framework/fw_FieldTable.h"
#include "kam/kamC_SmoothingTraits.h"
#include "kam/kamC_TableChecks.h"
#include "kam/kamC_assert.h"

kamC_Tabular::kamC_Tabular(const cls_ReadVisitor& reader) : kamC_Amplitude(reader) { fw_ReadFields(*this, reader); }
void kamC_Tabular::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kamC_Tabular* kamC_Tabular::Copy() const { return new kamC_Tabular(*this); }
bool kamC_Tabular::operator==(const kamC_Tabular& o) const { return fw_EqualFields(*this, o); }
bool kamC_Tabular::SameAs(const kamC_Amplitude& o) const { return *this == static_cast<const kamC_Tabular&>(o); }
void kamC_Tabular::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kamC_Tabular>(r); }
void kamC_Tabular::CowDtor(void* p) { fw_CowDtor<kamC_Tabular>(p); }

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
