#include "kbe/kbeC_CDCTerm.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kbe/kbeC_Traits.h"
#include "kbe/kbeC_assert.h"
#include "kbe/kbeC_Checks.h"

kbeC_CDCTerm::kbeC_CDCTerm(const cls_ReadVisitor& r) : uid(r.GetUid()) { fw_ReadFields(*this, r); }
const kbeC_ConnectorOptions& kbeC_CDCTerm::GetOptions() const { return kbeC_Present(options, "options"); }
kbeC_ConnectorOptions& kbeC_CDCTerm::ModifyOptions() { return kbeC_Present(options, "options"); }

void kbeC_CDCTerm::AssertValid() const {
  kbeC_Assert(!intrinsicComponents.empty(), kbeC_NoIntrinsicComponent);
  for (std::int32_t c : intrinsicComponents) kbeC_Assert(kbeC_InRange(c), kbeC_IntrinsicOutOfRange);
  if (localDependency) {
    kbeC_Assert(static_cast<std::int32_t>(indepCompType) <= 1, kbeC_NoIndependentComponentType);
    kbeC_Assert(!indepComponents.empty(), kbeC_TermNoIndependentComponent);
  }
  if (!options.IsNull()) {
    kbeC_AssertContent(options->RateOptionsAtDefaults(), kbeC_RateOptionsNotAllowed, "CDCTerm");
    options->AssertValid();
  }
}

template class fw_PersistentClass<kbeC_CDCTerm, mem_Allocated>;
