#include "kef/kefC_DiscreteFastener.h"

#include "framework/fw_FieldTable.h"
#include "kef/kefC_assert.h"

kefC_DiscreteFastener::kefC_DiscreteFastener(const cls_ReadVisitor& reader) : kefC_Fastener(reader) { fw_ReadFields(*this, reader); }
void kefC_DiscreteFastener::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kefC_DiscreteFastener* kefC_DiscreteFastener::Copy() const { return new kefC_DiscreteFastener(*this); }
bool kefC_DiscreteFastener::operator==(const kefC_DiscreteFastener& o) const { return fw_EqualFields(*this, o); }
bool kefC_DiscreteFastener::SameAs(const kefC_Fastener& o) const { return *this == static_cast<const kefC_DiscreteFastener&>(o); }
void kefC_DiscreteFastener::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kefC_DiscreteFastener>(r); }
void kefC_DiscreteFastener::CowDtor(void* p) { fw_CowDtor<kefC_DiscreteFastener>(p); }

void kefC_DiscreteFastener::AssertValid() const {
  if (suppress) return;  // a suppressed feature is not validated
  AssertFastenerValid();
}
