#include "kma/kmaC_MaterialOptionShortcut.h"

#include <optional>
#include <string>

#include "kma/kmaC_MaterialOptionInMaterialOptionShortcut.h"
#include "kma/kmaC_MaterialOptionInMaterialShortcut.h"
#include "kma/kmaC_OptionListShortcuts.h"
#include "platform/base/nex_Exception.h"
#include "platform/persist/cls_ClassMetadata.h"
#include "platform/persist/cls_Family.h"

kmaC_MaterialOptionShortcut kmaC_MaterialOptionShortcut::Ctor(const cls_ReadVisitor& r) {
  return ddr_ShortcutCtor<kmaC_MaterialOptionShortcut, kmaC_MaterialOptionInMaterialShortcut,
                          kmaC_MaterialOptionInMaterialOptionShortcut>(r);
}

namespace {
template <class OwnerRef>
OwnerRef ReadOwner(const cls_ReadVisitor& r, const char* shortcutClass) {
  std::optional<OwnerRef> owner;
  r.ReadObject("owner", [&](const cls_ReadVisitor& m) { owner.emplace(OwnerRef::Ctor(m)); });
  if (!owner) nex_ThrowCmd(std::string("A stored ") + shortcutClass + " has no owner");
  return *std::move(owner);
}

template <class OwnerRef>
void WriteOwner(const cls_WriteVisitor& w, const OwnerRef& owner) {
  w.WriteObject("owner", &owner, [](const void* p, const cls_WriteVisitor& v) { static_cast<const OwnerRef*>(p)->DBWrite(v); });
}

// The member of an option that holds the sub-option of that name; refuses a name that is none
// with the option's own message.
const cls_ScriptField& SubOptionField(const kmaC_MaterialOption& option, const cow_String& name) {
  const cls_ClassMetadata& md = cls_MetadataOf(option.DynTypeId());
  const cls_ScriptField* f = md.FindScriptField(name.view());
  const bool isOption = f && f->type == cls_AttrObject &&
                        (!f->declared || std::string_view(f->declared->RootName()) == kmaC_MaterialOption::kClassName);
  if (!isOption) kmaC_MaterialOption::RefuseUnknownStep(option, name.view());
  return *f;
}

template <class Names>
bool kmaC_RefuseListOfOtherOwner(const kmaC_MaterialOption& option, std::string_view step) {
  if (step != Names::kMember || option.OptionList(step)) return false;
  nex_ThrowCmd(Names::kRefusal);
}
}  // namespace

void kmaC_MaterialOption::RefuseUnknownStep(const kmaC_MaterialOption& option, std::string_view step) {
  kmaC_RefuseListOfOtherOwner<kmaC_UniaxialTestsListNames>(option, step);
  kmaC_RefuseListOfOtherOwner<kmaC_BiaxialTestsListNames>(option, step);
  kmaC_RefuseListOfOtherOwner<kmaC_PlanarTestsListNames>(option, step);
  kmaC_RefuseListOfOtherOwner<kmaC_DamageEvolutionListNames>(option, step);
  kmaC_RefuseListOfOtherOwner<kmaC_ElectrodeParticleListNames>(option, step);
  kmaC_RefuseListOfOtherOwner<kmaC_ElectrodeParticleLayerListNames>(option, step);
  nex_ThrowCmd(option.UnknownSubOptionMessage());
}

// --- a slot of a material ---------------------------------------------------------------------

kmaC_MaterialOptionInMaterialShortcut::kmaC_MaterialOptionInMaterialShortcut(kmaC_MaterialShortcut owner,
                                                                             const cow_String& slot)
    : owner_(std::move(owner)), slot_(slot) {
  if (!kmaC_Material::IsSlotName(slot.view())) nex_ThrowCmd("Unknown material option");
}

kmaC_MaterialOptionInMaterialShortcut kmaC_MaterialOptionInMaterialShortcut::Ctor(const cls_ReadVisitor& r) {
  if (r.GetTypeId() != TypeId()) ddr_RefuseShortcutRecord(kClassName, r.GetTypeId());
  kmaC_MaterialOptionInMaterialShortcut s(ReadOwner<kmaC_MaterialShortcut>(r, kClassName), r.ReadString("slot"));
  s.SetUid(r.GetUid());
  return s;
}

kmaC_MaterialOptionIMPLSC* kmaC_MaterialOptionInMaterialShortcut::Copy() const {
  return mem_New<kmaC_MaterialOptionInMaterialShortcut>(*this);
}

std::vector<cow_String> kmaC_MaterialOptionInMaterialShortcut::Path() const {
  std::vector<cow_String> p = owner_.Path();
  p.push_back(slot_);
  return p;
}

const kmaC_MaterialOption* kmaC_MaterialOptionInMaterialShortcut::ConstGet(const ddr_Model& model) const {
  const kmaC_Material* m = owner_.ConstGet(model);
  return m ? m->GetOption(slot_.view()) : nullptr;
}

kmaC_MaterialOption& kmaC_MaterialOptionInMaterialShortcut::Get(ddr_Model& model) const {
  // Refuse before the repository records a modification.
  if (const kmaC_Material* m = owner_.ConstGet(model); m && !m->GetOption(slot_.view()))
    ddr_RefuseShortcutPath(Path(), "the option slot is empty");
  return *owner_.Get(model).ModifyOption(slot_.view());
}

void kmaC_MaterialOptionInMaterialShortcut::DBWrite(const cls_WriteVisitor& w) const {
  if (!w.StartWrite(TypeId(), GetUid())) return;
  WriteOwner(w, owner_);
  w.WriteString("slot", slot_);
}

// --- a sub-option of an option ----------------------------------------------------------------

kmaC_MaterialOptionInMaterialOptionShortcut kmaC_MaterialOptionInMaterialOptionShortcut::Ctor(const cls_ReadVisitor& r) {
  if (r.GetTypeId() != TypeId()) ddr_RefuseShortcutRecord(kClassName, r.GetTypeId());
  kmaC_MaterialOptionInMaterialOptionShortcut s(ReadOwner<kmaC_MaterialOptionShortcut>(r, kClassName),
                                                r.ReadString("name"));
  s.SetUid(r.GetUid());
  return s;
}

kmaC_MaterialOptionIMPLSC* kmaC_MaterialOptionInMaterialOptionShortcut::Copy() const {
  return mem_New<kmaC_MaterialOptionInMaterialOptionShortcut>(*this);
}

std::vector<cow_String> kmaC_MaterialOptionInMaterialOptionShortcut::Path() const {
  std::vector<cow_String> p = owner_.Path();
  p.push_back(name_);
  return p;
}

const kmaC_MaterialOption* kmaC_MaterialOptionInMaterialOptionShortcut::ConstGet(const ddr_Model& model) const {
  const kmaC_MaterialOption* o = owner_.ConstGet(model);
  if (!o) return nullptr;
  return static_cast<const kmaC_MaterialOption*>(SubOptionField(*o, name_).child(o));
}

kmaC_MaterialOption& kmaC_MaterialOptionInMaterialOptionShortcut::Get(ddr_Model& model) const {
  if (const kmaC_MaterialOption* o = owner_.ConstGet(model); o && !SubOptionField(*o, name_).child(o))
    ddr_RefuseShortcutPath(Path(), "the sub-option is absent");
  kmaC_MaterialOption& o = owner_.Get(model);
  return *static_cast<kmaC_MaterialOption*>(SubOptionField(o, name_).mutableChild(&o));
}

void kmaC_MaterialOptionInMaterialOptionShortcut::DBWrite(const cls_WriteVisitor& w) const {
  if (!w.StartWrite(TypeId(), GetUid())) return;
  WriteOwner(w, owner_);
  w.WriteString("name", name_);
}
