#include "kco/kcoC_Coupling.h"

#include "framework/fw_FieldTable.h"
#include "kco/kcoC_assert.h"

kcoC_Coupling::kcoC_Coupling(const cls_ReadVisitor& reader) : kcoC_Constraint(reader) { fw_ReadFields(*this, reader); }
void kcoC_Coupling::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kcoC_Coupling* kcoC_Coupling::Copy() const { return new kcoC_Coupling(*this); }
bool kcoC_Coupling::operator==(const kcoC_Coupling& o) const { return fw_EqualFields(*this, o); }
bool kcoC_Coupling::SameAs(const kcoC_Constraint& o) const { return *this == static_cast<const kcoC_Coupling&>(o); }
void kcoC_Coupling::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kcoC_Coupling>(r); }
void kcoC_Coupling::CowDtor(void* p) { fw_CowDtor<kcoC_Coupling>(p); }

// A distributing coupling needs every displacement; its rotations are free.
void kcoC_Coupling::AssertValid() const {
  if (suppress) return;  // a suppressed constraint is not validated
  if (couplingType == kcoC_CouplingTypeEnm::DISTRIBUTING)
    kcoC_Assert(u1 && u2 && u3, kcoC_DistributingDisplacementsFree);
}
