#include "kbe/kbeC_ConnectorSection.h"

#include <string>

#include "framework/fw_PersistentClassImpl.h"
#include "platform/base/nex_Exception.h"

kbeC_ConnectorSection::kbeC_ConnectorSection(const cls_ReadVisitor& r) : uid(r.GetUid()) { fw_ReadFields(*this, r); }

void kbeC_ConnectorSection::AppendBehaviorOption(const kbeC_ConnectorBehaviorOption& option) {
  behaviorOptions.Append(kbeC_ConnectorBehaviorOptionHandle(option.Copy()));
}

kbeC_ConnectorBehaviorOption& kbeC_ConnectorSection::ModifyBehaviorOption(std::size_t index) {
  if (index >= behaviorOptions.size() || behaviorOptions[index].IsNull())
    nex_ThrowCmd("The section has no behavior option at position " + std::to_string(index));
  return behaviorOptions.Get(index).Get();
}

void kbeC_ConnectorSection::AssertValid() const {
  for (const auto& o : behaviorOptions)
    if (!o.IsNull()) o->AssertValid();
}

template class fw_PersistentClass<kbeC_ConnectorSection, mem_Allocated>;
