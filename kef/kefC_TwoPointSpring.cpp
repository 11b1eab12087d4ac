#include "kef/kefC_TwoPointSpring.h"

#include "framework/fw_FieldTable.h"
#include "kef/kefC_assert.h"

kefC_TwoPointSpring::kefC_TwoPointSpring(const cls_ReadVisitor& reader) : kefC_Spring(reader) { fw_ReadFields(*this, reader); }
void kefC_TwoPointSpring::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kefC_TwoPointSpring* kefC_TwoPointSpring::Copy() const { return new kefC_TwoPointSpring(*this); }
bool kefC_TwoPointSpring::operator==(const kefC_TwoPointSpring& o) const { return fw_EqualFields(*this, o); }
bool kefC_TwoPointSpring::SameAs(const kefC_Spring& o) const { return *this == static_cast<const kefC_TwoPointSpring&>(o); }
void kefC_TwoPointSpring::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kefC_TwoPointSpring>(r); }
void kefC_TwoPointSpring::CowDtor(void* p) { fw_CowDtor<kefC_TwoPointSpring>(p); }

// Both ends name their degree of freedom whatever the axis: the rules list no exception for the
// nodal line.
void kefC_TwoPointSpring::AssertValid() const {
  if (suppress) return;  // a suppressed feature is not validated
  AssertSpringValid();
  kefC_Assert(regionPairs.size() >= 2, kefC_NoPointPair);
  kefC_Assert(dof1 > 0, kefC_Dof1Unspecified);
  kefC_Assert(dof2 > 0, kefC_Dof2Unspecified);
}
