#include "kco/kcoC_Tie.h"

#include "framework/fw_FieldTable.h"

kcoC_Tie::kcoC_Tie(const cls_ReadVisitor& reader) : kcoC_Constraint(reader) { fw_ReadFields(*this, reader); }
void kcoC_Tie::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kcoC_Tie* kcoC_Tie::Copy() const { return new kcoC_Tie(*this); }
bool kcoC_Tie::operator==(const kcoC_Tie& o) const { return fw_EqualFields(*this, o); }
bool kcoC_Tie::SameAs(const kcoC_Constraint& o) const { return *this == static_cast<const kcoC_Tie&>(o); }
void kcoC_Tie::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kcoC_Tie>(r); }
void kcoC_Tie::CowDtor(void* p) { fw_CowDtor<kcoC_Tie>(p); }

// The tie's rules need the model (which regions are surfaces, which analyses are explicit); see
// kcoC_AssertInModel. On its own a tie is always acceptable.
void kcoC_Tie::AssertValid() const {}
