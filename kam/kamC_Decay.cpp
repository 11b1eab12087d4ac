#include "kam/kamC_Decay.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kam/kamC_assert.h"

kamC_Decay::kamC_Decay(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

// The start may be zero; the decay time divides and must be positive. Written so that a NaN fails.
void kamC_Decay::AssertValid() const {
  kamC_Assert(start >= 0, kamC_StartingTimeNegative);
  kamC_Assert(decayTime > 0, kamC_DecayTimeNotPositive);
}

template class fw_PersistentClass<kamC_Decay, kamC_Amplitude>;
