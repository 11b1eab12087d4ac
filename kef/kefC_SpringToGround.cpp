#include "kef/kefC_SpringToGround.h"

#include "framework/fw_FieldTable.h"
#include "kef/kefC_assert.h"

kefC_SpringToGround::kefC_SpringToGround(const cls_ReadVisitor& reader) : kefC_Spring(reader) { fw_ReadFields(*this, reader); }
void kefC_SpringToGround::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kefC_SpringToGround* kefC_SpringToGround::Copy() const { return new kefC_SpringToGround(*this); }
bool kefC_SpringToGround::operator==(const kefC_SpringToGround& o) const { return fw_EqualFields(*this, o); }
bool kefC_SpringToGround::SameAs(const kefC_Spring& o) const { return *this == static_cast<const kefC_SpringToGround&>(o); }
void kefC_SpringToGround::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kefC_SpringToGround>(r); }
void kefC_SpringToGround::CowDtor(void* p) { fw_CowDtor<kefC_SpringToGround>(p); }

void kefC_SpringToGround::AssertValid() const {
  if (suppress) return;  // a suppressed feature is not validated
  AssertSpringValid();
  kefC_Assert(!region.IsEmpty(), kefC_GroundRegionInvalid);
  kefC_Assert(dof1 > 0, kefC_GroundDofUnspecified);
}
