#include "kco/kcoC_DisplayBody.h"

#include "framework/fw_FieldTable.h"
#include "kco/kcoC_assert.h"

kcoC_DisplayBody::kcoC_DisplayBody(const cls_ReadVisitor& reader) : kcoC_Constraint(reader) { fw_ReadFields(*this, reader); }
void kcoC_DisplayBody::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kcoC_DisplayBody* kcoC_DisplayBody::Copy() const { return new kcoC_DisplayBody(*this); }
bool kcoC_DisplayBody::operator==(const kcoC_DisplayBody& o) const { return fw_EqualFields(*this, o); }
bool kcoC_DisplayBody::SameAs(const kcoC_Constraint& o) const { return *this == static_cast<const kcoC_DisplayBody&>(o); }
void kcoC_DisplayBody::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kcoC_DisplayBody>(r); }
void kcoC_DisplayBody::CowDtor(void* p) { fw_CowDtor<kcoC_DisplayBody>(p); }

void kcoC_DisplayBody::AssertValid() const {
  if (suppress) return;  // a suppressed constraint is not validated
  kcoC_Assert(instanceId != 0, kcoC_DisplayBodyWithoutInstance);
}
