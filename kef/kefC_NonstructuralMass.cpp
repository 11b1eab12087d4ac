#include "kef/kefC_NonstructuralMass.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kef/kefC_assert.h"

kefC_NonstructuralMass::kefC_NonstructuralMass(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

void kefC_NonstructuralMass::AssertValid() const {
  if (suppress) return;  // a suppressed feature is not validated
  kefC_Assert(magnitude >= 0, kefC_NonstructuralMassNegative);
}

template class fw_PersistentClass<kefC_NonstructuralMass, kefC_Inertia>;
