#include "kbe/kbeC_ConnectorSection.h"

#include <string>

#include "framework/fw_FieldTable.h"
#include "platform/base/nex_Exception.h"

kbeC_ConnectorSection::kbeC_ConnectorSection(const cls_ReadVisitor& r) : uid(r.GetUid()) { fw_ReadFields(*this, r); }
void kbeC_ConnectorSection::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kbeC_ConnectorSection* kbeC_ConnectorSection::Copy() const { return new kbeC_ConnectorSection(*this); }
bool kbeC_ConnectorSection::operator==(const kbeC_ConnectorSection& o) const { return fw_EqualFields(*this, o); }
void kbeC_ConnectorSection::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kbeC_ConnectorSection>(r); }
void kbeC_ConnectorSection::CowDtor(void* p) { fw_CowDtor<kbeC_ConnectorSection>(p); }

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
