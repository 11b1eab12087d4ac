#include "kam/kamC_EquallySpaced.h"

#include "framework/fw_FieldTable.h"
#include "kam/kamC_SmoothingTraits.h"
#include "kam/kamC_TableChecks.h"
#include "kam/kamC_assert.h"

kamC_EquallySpaced::kamC_EquallySpaced(const cls_ReadVisitor& reader) : kamC_Amplitude(reader) { fw_ReadFields(*this, reader); }
void kamC_EquallySpaced::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kamC_EquallySpaced* kamC_EquallySpaced::Copy() const { return new kamC_EquallySpaced(*this); }
bool kamC_EquallySpaced::operator==(const kamC_EquallySpaced& o) const { return fw_EqualFields(*this, o); }
bool kamC_EquallySpaced::SameAs(const kamC_Amplitude& o) const { return *this == static_cast<const kamC_EquallySpaced&>(o); }
void kamC_EquallySpaced::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kamC_EquallySpaced>(r); }
void kamC_EquallySpaced::CowDtor(void* p) { fw_CowDtor<kamC_EquallySpaced>(p); }

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
