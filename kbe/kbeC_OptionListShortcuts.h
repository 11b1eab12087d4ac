#pragma once
// The option list of a section as one addressable object, and an option by position in a list
// reached through the list's own shortcut. A host that works on the whole list (reorders it,
// appends to it) holds the list's shortcut; one that works on a single option holds the option's.
#include <cstdint>
#include <vector>

#include "kbe/kbeC_ConnectorSection.h"
#include "kbe/kbeC_Shortcuts.h"

// The option list of a section of the model's "connectorSections", by the section's name: the
// implementation behind the list's handle.
class kbeC_ConnectorBehaviorOptionListIMPLSC : public ddr_ShortcutIMPL<kbeC_ConnectorBehaviorOptionList> {
 public:
  static constexpr const char* kClassName = "kbeC_ConnectorBehaviorOptionListIMPLSC";
  static constexpr const char* kAddressedName = "kbeC_ConnectorBehaviorOptionList";
  static constexpr unsigned TypeId() { return fw_TypeId(680, 19); }
  explicit kbeC_ConnectorBehaviorOptionListIMPLSC(const cow_String& section) : section_(section) {}
  static kbeC_ConnectorBehaviorOptionListIMPLSC Ctor(const cls_ReadVisitor& r);

  kbeC_ConnectorBehaviorOptionListIMPLSC* Copy() const override;
  const char* ClassName() const override { return kClassName; }
  unsigned ClassTypeId() const override { return TypeId(); }
  cow_String Name() const override;
  std::vector<cow_String> Path() const override;
  // Null when the model has no section of that name.
  const kbeC_ConnectorBehaviorOptionList* ConstGet(const ddr_Model& model) const override;
  kbeC_ConnectorBehaviorOptionList& Get(ddr_Model& model) const override;
  void DBWrite(const cls_WriteVisitor& w) const override;

 private:
  cow_String section_;
};

class kbeC_ConnectorBehaviorOptionListShortcut : public kbeC_ListHandle<kbeC_ConnectorBehaviorOptionListIMPLSC> {
 public:
  static constexpr const char* kClassName = "kbeC_ConnectorBehaviorOptionListShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(680, 20); }
  using kbeC_ListHandle::kbeC_ListHandle;
  static kbeC_ConnectorBehaviorOptionListShortcut Ctor(const cls_ReadVisitor& r);
};

// An option by position in the list its owner addresses.
class kbeC_ConnectorBehaviorOptionInConnectorBehaviorListShortcut : public kbeC_ConnectorBehaviorOptionIMPLSC {
 public:
  static constexpr const char* kClassName = "kbeC_ConnectorBehaviorOptionInConnectorBehaviorListShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(680, 22); }
  kbeC_ConnectorBehaviorOptionInConnectorBehaviorListShortcut(kbeC_ConnectorBehaviorOptionListShortcut owner, std::int32_t position)
      : owner_(std::move(owner)), position_(position) {}
  static kbeC_ConnectorBehaviorOptionInConnectorBehaviorListShortcut Ctor(const cls_ReadVisitor& r);

  kbeC_ConnectorBehaviorOptionInConnectorBehaviorListShortcut* Copy() const override;
  const char* ClassName() const override { return kClassName; }
  unsigned ClassTypeId() const override { return TypeId(); }
  cow_String Name() const override;
  std::vector<cow_String> Path() const override;
  // Null when the list is absent or holds no option at the position.
  const kbeC_ConnectorBehaviorOption* ConstGet(const ddr_Model& model) const override;
  kbeC_ConnectorBehaviorOption& Get(ddr_Model& model) const override;
  void DBWrite(const cls_WriteVisitor& w) const override;

 private:
  kbeC_ConnectorBehaviorOptionListShortcut owner_;
  std::int32_t position_;
};
