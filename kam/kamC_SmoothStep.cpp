#include "kam/kamC_SmoothStep.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kam/kamC_assert.h"

kamC_SmoothStep::kamC_SmoothStep(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

void kamC_SmoothStep::AssertValid() const {
  kamC_AssertTimeAmplitudeTable(data);
}

template class fw_PersistentClass<kamC_SmoothStep, kamC_Amplitude>;
