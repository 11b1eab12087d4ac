#include "kco/kcoC_ShellSolidCoupling.h"

#include "framework/fw_FieldTable.h"
#include "kco/kcoC_assert.h"

kcoC_ShellSolidCoupling::kcoC_ShellSolidCoupling(const cls_ReadVisitor& reader) : kcoC_Constraint(reader) { fw_ReadFields(*this, reader); }
void kcoC_ShellSolidCoupling::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kcoC_ShellSolidCoupling* kcoC_ShellSolidCoupling::Copy() const { return new kcoC_ShellSolidCoupling(*this); }
bool kcoC_ShellSolidCoupling::operator==(const kcoC_ShellSolidCoupling& o) const { return fw_EqualFields(*this, o); }
bool kcoC_ShellSolidCoupling::SameAs(const kcoC_Constraint& o) const { return *this == static_cast<const kcoC_ShellSolidCoupling&>(o); }
void kcoC_ShellSolidCoupling::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kcoC_ShellSolidCoupling>(r); }
void kcoC_ShellSolidCoupling::CowDtor(void* p) { fw_CowDtor<kcoC_ShellSolidCoupling>(p); }

// The solid face plays the part of a tie's main surface and reports the tie's message when it
// is missing; the shared text is kept on purpose.
void kcoC_ShellSolidCoupling::AssertValid() const {
  if (suppress) return;  // a suppressed constraint is not validated
  kcoC_Assert(!solidFace.Name().empty(), kcoC_TieMainNotSurface);
}
