#include "kef/kefC_EngineeringFeatures.h"

#include "framework/fw_FieldTable.h"

kefC_EngineeringFeatures::kefC_EngineeringFeatures(const cls_ReadVisitor& r) : uid(r.GetUid()) { fw_ReadFields(*this, r); }
void kefC_EngineeringFeatures::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kefC_EngineeringFeatures* kefC_EngineeringFeatures::Copy() const { return mem_New<kefC_EngineeringFeatures>(*this); }
bool kefC_EngineeringFeatures::operator==(const kefC_EngineeringFeatures& o) const { return fw_EqualFields(*this, o); }
void kefC_EngineeringFeatures::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kefC_EngineeringFeatures>(r); }
void kefC_EngineeringFeatures::CowDtor(void* p) { fw_CowDtor<kefC_EngineeringFeatures>(p); }

bool kefC_EngineeringFeatures::Equals(const mdl_Extension& o) const {
  auto* f = dynamic_cast<const kefC_EngineeringFeatures*>(&o);
  return f && *this == *f;
}
