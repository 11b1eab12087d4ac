#include "kef/kefC_NonstructuralMass.h"

#include "framework/fw_FieldTable.h"
#include "kef/kefC_assert.h"

kefC_NonstructuralMass::kefC_NonstructuralMass(const cls_ReadVisitor& reader) : kefC_Inertia(reader) { fw_ReadFields(*this, reader); }
void kefC_NonstructuralMass::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kefC_NonstructuralMass* kefC_NonstructuralMass::Copy() const { return new kefC_NonstructuralMass(*this); }
bool kefC_NonstructuralMass::operator==(const kefC_NonstructuralMass& o) const { return fw_EqualFields(*this, o); }
bool kefC_NonstructuralMass::SameAs(const kefC_Inertia& o) const { return *this == static_cast<const kefC_NonstructuralMass&>(o); }
void kefC_NonstructuralMass::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kefC_NonstructuralMass>(r); }
void kefC_NonstructuralMass::CowDtor(void* p) { fw_CowDtor<kefC_NonstructuralMass>(p); }

void kefC_NonstructuralMass::AssertValid() const {
  if (suppress) return;  // a suppressed feature is not validated
  kefC_Assert(magnitude >= 0, kefC_NonstructuralMassNegative);
}
