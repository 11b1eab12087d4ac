#include "kam/kamC_SpectrumAmplitude.h"

#include "framework/fw_FieldTable.h"
#include "kam/kamC_assert.h"

kamC_SpectrumAmplitude::kamC_SpectrumAmplitude(const cls_ReadVisitor& reader) : kamC_Amplitude(reader) { fw_ReadFields(*this, reader); }
void kamC_SpectrumAmplitude::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kamC_SpectrumAmplitude* kamC_SpectrumAmplitude::Copy() const { return new kamC_SpectrumAmplitude(*this); }
bool kamC_SpectrumAmplitude::operator==(const kamC_SpectrumAmplitude& o) const { return fw_EqualFields(*this, o); }
bool kamC_SpectrumAmplitude::SameAs(const kamC_Amplitude& o) const { return *this == static_cast<const kamC_SpectrumAmplitude&>(o); }
void kamC_SpectrumAmplitude::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kamC_SpectrumAmplitude>(r); }
void kamC_SpectrumAmplitude::CowDtor(void* p) { fw_CowDtor<kamC_SpectrumAmplitude>(p); }

// No rule is stated for the spectrum amplitude; the event amplitude is resolved by name elsewhere.
void kamC_SpectrumAmplitude::AssertValid() const {}
