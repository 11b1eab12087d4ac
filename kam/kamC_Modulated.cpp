#include "kam/kamC_Modulated.h"

#include "framework/fw_FieldTable.h"
#include "kam/kamC_assert.h"

kamC_Modulated::kamC_Modulated(const cls_ReadVisitor& reader) : kamC_Amplitude(reader) { fw_ReadFields(*this, reader); }
void kamC_Modulated::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kamC_Modulated* kamC_Modulated::Copy() const { return new kamC_Modulated(*this); }
bool kamC_Modulated::operator==(const kamC_Modulated& o) const { return fw_EqualFields(*this, o); }
bool kamC_Modulated::SameAs(const kamC_Amplitude& o) const { return *this == static_cast<const kamC_Modulated&>(o); }
void kamC_Modulated::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kamC_Modulated>(r); }
void kamC_Modulated::CowDtor(void* p) { fw_CowDtor<kamC_Modulated>(p); }

// The start may be zero; both circular frequencies must be positive. Written so that a NaN fails.
void kamC_Modulated::AssertValid() const {
  kamC_Assert(start >= 0, kamC_StartingTimeNegative);
  kamC_Assert(frequency1 > 0, kamC_CircularFrequency1NotPositive);
  kamC_Assert(frequency2 > 0, kamC_CircularFrequency2NotPositive);
}
