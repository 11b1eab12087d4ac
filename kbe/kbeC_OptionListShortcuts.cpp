#include "kbe/kbeC_OptionListShortcuts.h"

#include <optional>
#include <string>

#include "kbe/kbeC_ConnectorSectionContainer.h"
#include "platform/base/nex_Exception.h"
#include "platform/model/ddr_Model.h"
#include "platform/persist/cls_Visitor.h"

namespace {
const char* const kOptionListSections = "connectorSections";
const char* const kOptionListMember = "behaviorOptions";

bool kbeOLS_HasPosition(const kbeC_ConnectorBehaviorOptionList& list, std::int32_t position) {
  return position >= 0 && static_cast<std::size_t>(position) < list.size() && !list[static_cast<std::size_t>(position)].IsNull();
}
}  // namespace

// --- the list of a section ------------------------------------------------------------------------

kbeC_ConnectorBehaviorOptionListIMPLSC kbeC_ConnectorBehaviorOptionListIMPLSC::Ctor(const cls_ReadVisitor& r) {
  if (r.GetTypeId() != TypeId()) ddr_RefuseShortcutRecord(kClassName, r.GetTypeId());
  kbeC_ConnectorBehaviorOptionListIMPLSC s(r.ReadString("section"));
  s.SetUid(r.GetUid());
  return s;
}

kbeC_ConnectorBehaviorOptionListIMPLSC* kbeC_ConnectorBehaviorOptionListIMPLSC::Copy() const {
  return mem_New<kbeC_ConnectorBehaviorOptionListIMPLSC>(*this);
}

cow_String kbeC_ConnectorBehaviorOptionListIMPLSC::Name() const { return kOptionListMember; }

std::vector<cow_String> kbeC_ConnectorBehaviorOptionListIMPLSC::Path() const {
  return {cow_String(kOptionListSections), section_, Name()};
}

const kbeC_ConnectorBehaviorOptionList* kbeC_ConnectorBehaviorOptionListIMPLSC::ConstGet(const ddr_Model& model) const {
  const auto* sections = dynamic_cast<const kbeC_ConnectorSectionContainer*>(model.FindRepository(kOptionListSections));
  const kbeC_ConnectorSection* section = sections ? sections->ConstGet(section_) : nullptr;
  return section ? &section->GetBehaviorOptions() : nullptr;
}

kbeC_ConnectorBehaviorOptionList& kbeC_ConnectorBehaviorOptionListIMPLSC::Get(ddr_Model& model) const {
  // Refuse before the repository records a modification.
  if (!ConstGet(model)) ddr_RefuseShortcutPath(Path(), "there is no such section");
  auto* sections = dynamic_cast<kbeC_ConnectorSectionContainer*>(model.ModifyRepository(kOptionListSections));
  return sections->Get(section_).ModifyBehaviorOptions();
}

void kbeC_ConnectorBehaviorOptionListIMPLSC::DBWrite(const cls_WriteVisitor& w) const {
  if (!w.StartWrite(TypeId(), GetUid())) return;
  w.WriteString("section", section_);
}

kbeC_ConnectorBehaviorOptionListShortcut kbeC_ConnectorBehaviorOptionListShortcut::Ctor(const cls_ReadVisitor& r) {
  return ddr_ShortcutCtor<kbeC_ConnectorBehaviorOptionListShortcut, kbeC_ConnectorBehaviorOptionListIMPLSC>(r);
}

// --- an option by position in a list ---------------------------------------------------------------

using kbeOLS_OptionInList = kbeC_ConnectorBehaviorOptionInConnectorBehaviorListShortcut;

kbeOLS_OptionInList kbeOLS_OptionInList::Ctor(const cls_ReadVisitor& r) {
  if (r.GetTypeId() != TypeId()) ddr_RefuseShortcutRecord(kClassName, r.GetTypeId());
  std::optional<kbeC_ConnectorBehaviorOptionListShortcut> owner;
  r.ReadObject("owner", [&](const cls_ReadVisitor& m) { owner.emplace(kbeC_ConnectorBehaviorOptionListShortcut::Ctor(m)); });
  if (!owner) nex_ThrowCmd(std::string("A stored ") + kClassName + " has no owner");
  kbeOLS_OptionInList s(*std::move(owner), r.ReadInt("position"));
  s.SetUid(r.GetUid());
  return s;
}

kbeOLS_OptionInList* kbeOLS_OptionInList::Copy() const { return mem_New<kbeOLS_OptionInList>(*this); }

cow_String kbeOLS_OptionInList::Name() const { return cow_String(std::to_string(position_)); }

std::vector<cow_String> kbeOLS_OptionInList::Path() const {
  std::vector<cow_String> p = owner_.Path();
  p.push_back(Name());
  return p;
}

const kbeC_ConnectorBehaviorOption* kbeOLS_OptionInList::ConstGet(const ddr_Model& model) const {
  const kbeC_ConnectorBehaviorOptionList* list = owner_.ConstGet(model);
  if (!list || !kbeOLS_HasPosition(*list, position_)) return nullptr;
  return &(*list)[static_cast<std::size_t>(position_)].Get();
}

kbeC_ConnectorBehaviorOption& kbeOLS_OptionInList::Get(ddr_Model& model) const {
  if (!ConstGet(model)) ddr_RefuseShortcutPath(Path(), "there is no option at that position");
  return owner_.Get(model).Get(static_cast<std::size_t>(position_)).Get();
}

void kbeOLS_OptionInList::DBWrite(const cls_WriteVisitor& w) const {
  if (!w.StartWrite(TypeId(), GetUid())) return;
  w.WriteObject("owner", &owner_, [](const void* p, const cls_WriteVisitor& v) {
    static_cast<const kbeC_ConnectorBehaviorOptionListShortcut*>(p)->DBWrite(v);
  });
  w.WriteInt("position", position_);
}
