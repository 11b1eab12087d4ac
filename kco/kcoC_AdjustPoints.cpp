#include "kco/kcoC_AdjustPoints.h"

#include "framework/fw_FieldTable.h"

kcoC_AdjustPoints::kcoC_AdjustPoints(const cls_ReadVisitor& reader) : kcoC_Constraint(reader) { fw_ReadFields(*this, reader); }
void kcoC_AdjustPoints::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kcoC_AdjustPoints* kcoC_AdjustPoints::Copy() const { return new kcoC_AdjustPoints(*this); }
bool kcoC_AdjustPoints::operator==(const kcoC_AdjustPoints& o) const { return fw_EqualFields(*this, o); }
bool kcoC_AdjustPoints::SameAs(const kcoC_Constraint& o) const { return *this == static_cast<const kcoC_AdjustPoints&>(o); }
void kcoC_AdjustPoints::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kcoC_AdjustPoints>(r); }
void kcoC_AdjustPoints::CowDtor(void* p) { fw_CowDtor<kcoC_AdjustPoints>(p); }

void kcoC_AdjustPoints::AssertValid() const {}
