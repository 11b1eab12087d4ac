#include "kam/kamC_UserAmplitude.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kam/kamC_assert.h"

kamC_UserAmplitude::kamC_UserAmplitude(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

// No rule constrains the number of variables.
void kamC_UserAmplitude::AssertValid() const {}

template class fw_PersistentClass<kamC_UserAmplitude, kamC_Amplitude>;
