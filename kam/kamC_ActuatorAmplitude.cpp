#include "kam/kamC_ActuatorAmplitude.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kam/kamC_assert.h"

kamC_ActuatorAmplitude::kamC_ActuatorAmplitude(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

// Nothing to check.
void kamC_ActuatorAmplitude::AssertValid() const {}

template class fw_PersistentClass<kamC_ActuatorAmplitude, kamC_Amplitude>;
