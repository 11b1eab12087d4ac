#include "kam/kamC_SmoothStep.h"

#include "framework/fw_FieldTable.h"
#include "kam/kamC_assert.h"

kamC_SmoothStep::kamC_SmoothStep(const cls_ReadVisitor& reader) : kamC_Amplitude(reader) { fw_ReadFields(*this, reader); }
void kamC_SmoothStep::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kamC_SmoothStep* kamC_SmoothStep::Copy() const { return new kamC_SmoothStep(*this); }
bool kamC_SmoothStep::operator==(const kamC_SmoothStep& o) const { return fw_EqualFields(*this, o); }
bool kamC_SmoothStep::SameAs(const kamC_Amplitude& o) const { return *this == static_cast<const kamC_SmoothStep&>(o); }
void kamC_SmoothStep::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kamC_SmoothStep>(r); }
void kamC_SmoothStep::CowDtor(void* p) { fw_CowDtor<kamC_SmoothStep>(p); }

void kamC_SmoothStep::AssertValid() const {
  kamC_AssertTimeAmplitudeTable(data);
}
