#include "kfd/kfdC_AnalyticalField.h"

#include "kfd/kfdC_assert.h"
#include "platform/base/cow_COW.h"
#include "platform/persist/cls_TypedMetadata.h"

kfdC_AnalyticalField::kfdC_AnalyticalField(const cls_ReadVisitor& r) : kfdC_Field(r) {}
void kfdC_AnalyticalField::CowDtor(void* p) { cow_Destroy(static_cast<kfdC_Field*>(p)); }

// An abstract class of the family: the records of the concrete classes carry its members; its
// metadata lets readers and repositories treat the family as one.
void kfdC_AnalyticalField::InitializeMetadata(cls_ClassRegistrar& registrar) {
  auto* md = new cls_TypedMetadata<kfdC_AnalyticalField>();
  registrar.AddClassMD(md);
  md->AddDtor(&CowDtor);
}

void kfdC_AnalyticalField::AssertAnalyticalValid() const {
  kfdC_Assert(csysType != CsysTypeEnm::INVALID, kfdC_InvalidCsysReference);
}
