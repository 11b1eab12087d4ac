#include "kam/kamC_Modulated.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kam/kamC_assert.h"

kamC_Modulated::kamC_Modulated(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

// The start may be zero; both circular frequencies must be positive. Written so that a NaN fails.
void kamC_Modulated::AssertValid() const {
  kamC_Assert(start >= 0, kamC_StartingTimeNegative);
  kamC_Assert(frequency1 > 0, kamC_CircularFrequency1NotPositive);
  kamC_Assert(frequency2 > 0, kamC_CircularFrequency2NotPositive);
}

template class fw_PersistentClass<kamC_Modulated, kamC_Amplitude>;
