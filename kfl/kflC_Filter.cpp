#include "kfl/kflC_Filter.h"

#include "framework/fw_Assert.h"
#include "platform/base/cow_COW.h"
#include "platform/persist/cls_TypedMetadata.h"

kflC_Filter::kflC_Filter(const cls_ReadVisitor& r) : uid(r.GetUid()) {}

void kflC_Filter::CowDtor(void* p) { cow_Destroy(static_cast<kflC_Filter*>(p)); }

// The root registers no attributes: each kind registers the whole of its own layout.
void kflC_Filter::InitializeMetadata(cls_ClassRegistrar& registrar) {
  auto* md = new cls_TypedMetadata<kflC_Filter>();
  registrar.AddClassMD(md);
  md->AddDtor(&CowDtor);
}

void kflC_Refuse(bool ok, const char* message) {
  fw_ModuleAssert(ok, message, kflC_kValidationFile, kflC_kValidationLine);
}

// Written so that a NaN fails the rule it reaches.
void kflC_Filter::AssertFrequency(int maxOrder, const char* orderMessage) const {
  kflC_Refuse(cutoffFrequency > 0, "The cutoff frequency must be greater than zero.");
  kflC_Refuse(order >= 1 && order <= maxOrder, orderMessage);
}

void kflC_Filter::AssertLimit() const {
  kflC_Refuse(!halt || limit != kflC_kUnspecified, "A limit must be specified to halt the analysis.");
}
