#include "tests/command/cmdT_Holder.h"

#include "framework/fw_FieldTable.h"
#include "platform/model/ddr_Model.h"
#include "platform/model/mdl_ExtensionWrapper.h"
#include "tests/support/qmx_test.h"

template <>
struct mdl_WrapperTraits<cmdT_HolderCont> {
  static constexpr const char* kClassName = "cmdT_HolderWrapper";
  static constexpr int kVersion = 1;
  static constexpr unsigned TypeId() { return fw_TypeId(kCmdTestKey, 5); }
};
template <>
struct mdl_WrapperTraits<cmdT_NumberedControls> {
  static constexpr const char* kClassName = "cmdT_NumberedWrapper";
  static constexpr int kVersion = 1;
  static constexpr unsigned TypeId() { return fw_TypeId(kCmdTestKey, 6); }
};
template <>
struct mdl_WrapperTraits<cmdT_DomainGroups> {
  static constexpr const char* kClassName = "cmdT_DomainGroupsWrapper";
  static constexpr int kVersion = 1;
  static constexpr unsigned TypeId() { return fw_TypeId(kCmdTestKey, 9); }
};
template <>
struct mdl_WrapperTraits<cmdT_DomainList> {
  static constexpr const char* kClassName = "cmdT_DomainListWrapper";
  static constexpr int kVersion = 1;
  static constexpr unsigned TypeId() { return fw_TypeId(kCmdTestKey, 7); }
};

cmdT_Holder::cmdT_Holder(const cls_ReadVisitor& r) : uid(r.GetUid()) { fw_ReadFields(*this, r); }
void cmdT_Holder::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
cmdT_Holder* cmdT_Holder::Copy() const { return new cmdT_Holder(*this); }
bool cmdT_Holder::operator==(const cmdT_Holder& o) const { return fw_EqualFields(*this, o); }
void cmdT_Holder::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<cmdT_Holder>(r); }
void cmdT_Holder::CowDtor(void* p) { fw_CowDtor<cmdT_Holder>(p); }
void cmdT_Holder::AssertValid() const {
  if (count < 0) nex_PrimError(atr_raw("Count must not be negative.")).Throw("cmdT_Holder", 7);
}

cmdT_HolderContShortcut cmdT_HolderContShortcut::Ctor(const cls_ReadVisitor& r) {
  return ddr_ShortcutCtor<cmdT_HolderContShortcut, cmdT_HolderContInModelShortcut>(r);
}
cmdT_HolderShortcut cmdT_HolderShortcut::Ctor(const cls_ReadVisitor& r) {
  return ddr_ShortcutCtor<cmdT_HolderShortcut, cmdT_HolderInHolderContShortcut>(r);
}

void cmdT_Register() {
  static bool done = [] {
    qmx_StartLibrary();
    auto& reg = cls_ClassRegistrar::Instance();
    cmdT_Holder::InitializeMetadata(reg);
    cmdT_HolderCont::InitializeMetadata(reg);
    cmdT_NumberedControls::InitializeMetadata(reg);
    cmdT_DomainList::InitializeMetadata(reg);
    mdl_ExtensionWrapper<cmdT_HolderCont>::InitializeMetadata(reg);
    mdl_ExtensionWrapper<cmdT_NumberedControls>::InitializeMetadata(reg);
    mdl_ExtensionWrapper<cmdT_DomainList>::InitializeMetadata(reg);
    cmdT_DomainGroups::InitializeMetadata(reg);
    mdl_ExtensionWrapper<cmdT_DomainGroups>::InitializeMetadata(reg);
    ddr_RegisterShortcutReader<cmdT_DomContInHolderShortcut>();
    ddr_Model::RegisterExtension(mdl_ExtensionWrapper<cmdT_HolderCont>());
    ddr_Model::RegisterExtension(mdl_ExtensionWrapper<cmdT_NumberedControls>());
    ddr_Model::RegisterExtension(mdl_ExtensionWrapper<cmdT_DomainList>());
    ddr_Model::RegisterExtension(mdl_ExtensionWrapper<cmdT_DomainGroups>());
    return true;
  }();
  (void)done;
}
