#include "kam/kamC_ActuatorAmplitude.h"

#include "framework/fw_FieldTable.h"
#include "kam/kamC_assert.h"

kamC_ActuatorAmplitude::kamC_ActuatorAmplitude(const cls_ReadVisitor& reader) : kamC_Amplitude(reader) { fw_ReadFields(*this, reader); }
void kamC_ActuatorAmplitude::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kamC_ActuatorAmplitude* kamC_ActuatorAmplitude::Copy() const { return new kamC_ActuatorAmplitude(*this); }
bool kamC_ActuatorAmplitude::operator==(const kamC_ActuatorAmplitude& o) const { return fw_EqualFields(*this, o); }
bool kamC_ActuatorAmplitude::SameAs(const kamC_Amplitude& o) const { return *this == static_cast<const kamC_ActuatorAmplitude&>(o); }
void kamC_ActuatorAmplitude::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kamC_ActuatorAmplitude>(r); }
void kamC_ActuatorAmplitude::CowDtor(void* p) { fw_CowDtor<kamC_ActuatorAmplitude>(p); }

// Nothing to check.
void kamC_ActuatorAmplitude::AssertValid() const {}
