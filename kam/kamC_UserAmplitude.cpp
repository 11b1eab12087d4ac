#include "kam/kamC_UserAmplitude.h"

#include "framework/fw_FieldTable.h"
#include "kam/kamC_assert.h"

kamC_UserAmplitude::kamC_UserAmplitude(const cls_ReadVisitor& reader) : kamC_Amplitude(reader) { fw_ReadFields(*this, reader); }
void kamC_UserAmplitude::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kamC_UserAmplitude* kamC_UserAmplitude::Copy() const { return new kamC_UserAmplitude(*this); }
bool kamC_UserAmplitude::operator==(const kamC_UserAmplitude& o) const { return fw_EqualFields(*this, o); }
bool kamC_UserAmplitude::SameAs(const kamC_Amplitude& o) const { return *this == static_cast<const kamC_UserAmplitude&>(o); }
void kamC_UserAmplitude::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kamC_UserAmplitude>(r); }
void kamC_UserAmplitude::CowDtor(void* p) { fw_CowDtor<kamC_UserAmplitude>(p); }

// No rule constrains the number of variables.
void kamC_UserAmplitude::AssertValid() const {}
