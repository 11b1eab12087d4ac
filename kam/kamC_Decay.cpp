#include "kam/kamC_Decay.h"

#include "framework/fw_FieldTable.h"
#include "kam/kamC_assert.h"

kamC_Decay::kamC_Decay(const cls_ReadVisitor& reader) : kamC_Amplitude(reader) { fw_ReadFields(*this, reader); }
void kamC_Decay::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kamC_Decay* kamC_Decay::Copy() const { return new kamC_Decay(*this); }
bool kamC_Decay::operator==(const kamC_Decay& o) const { return fw_EqualFields(*this, o); }
bool kamC_Decay::SameAs(const kamC_Amplitude& o) const { return *this == static_cast<const kamC_Decay&>(o); }
void kamC_Decay::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kamC_Decay>(r); }
void kamC_Decay::CowDtor(void* p) { fw_CowDtor<kamC_Decay>(p); }

// The start may be zero; the decay time divides and must be positive. Written so that a NaN fails.
void kamC_Decay::AssertValid() const {
  kamC_Assert(start >= 0, kamC_StartingTimeNegative);
  kamC_Assert(decayTime > 0, kamC_DecayTimeNotPositive);
}
