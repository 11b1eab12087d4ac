#include "kco/kcoC_EmbeddedRegion.h"

#include "framework/fw_FieldTable.h"

kcoC_EmbeddedRegion::kcoC_EmbeddedRegion(const cls_ReadVisitor& reader) : kcoC_Constraint(reader) { fw_ReadFields(*this, reader); }
void kcoC_EmbeddedRegion::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kcoC_EmbeddedRegion* kcoC_EmbeddedRegion::Copy() const { return new kcoC_EmbeddedRegion(*this); }
bool kcoC_EmbeddedRegion::operator==(const kcoC_EmbeddedRegion& o) const { return fw_EqualFields(*this, o); }
bool kcoC_EmbeddedRegion::SameAs(const kcoC_Constraint& o) const { return *this == static_cast<const kcoC_EmbeddedRegion&>(o); }
void kcoC_EmbeddedRegion::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kcoC_EmbeddedRegion>(r); }
void kcoC_EmbeddedRegion::CowDtor(void* p) { fw_CowDtor<kcoC_EmbeddedRegion>(p); }

void kcoC_EmbeddedRegion::AssertValid() const {}
