#include "kam/kamC_SpectrumAmplitude.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kam/kamC_assert.h"

kamC_SpectrumAmplitude::kamC_SpectrumAmplitude(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

// No rule is stated for the spectrum amplitude; the event amplitude is resolved by name elsewhere.
void kamC_SpectrumAmplitude::AssertValid() const {}

template class fw_PersistentClass<kamC_SpectrumAmplitude, kamC_Amplitude>;
