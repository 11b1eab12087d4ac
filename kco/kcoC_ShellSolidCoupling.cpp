#include "kco/kcoC_ShellSolidCoupling.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kco/kcoC_assert.h"

kcoC_ShellSolidCoupling::kcoC_ShellSolidCoupling(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

// The solid face plays the part of a tie's main surface and reports the tie's message when it
// is missing; the shared text is kept on purpose.
void kcoC_ShellSolidCoupling::AssertValid() const {
  if (suppress) return;  // a suppressed constraint is not validated
  kcoC_Assert(!solidFace.Name().empty(), kcoC_TieMainNotSurface);
}

template class fw_PersistentClass<kcoC_ShellSolidCoupling, kcoC_Constraint>;
