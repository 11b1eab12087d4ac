#include "kma/kmaC_OptionListShortcuts.h"

#include <optional>
#include <string>

#include "kma/kmaC_MaterialOptionListShortcut.h"
#include "platform/base/nex_Exception.h"

kmaC_MaterialOptionListShortcut kmaC_MaterialOptionListShortcut::Ctor(const cls_ReadVisitor& r) {
  return ddr_ShortcutCtor<kmaC_MaterialOptionListShortcut, kmaC_MaterialOptionListInMullinsEffectShortcut,
                          kmaC_UniaxialTestsListInMaterialOptionShortcut, kmaC_BiaxialTestsListInMaterialOptionShortcut,
                          kmaC_PlanarTestsListInMaterialOptionShortcut, kmaC_DamageEvolutionListInMaterialOptionShortcut,
                          kmaC_ElectrodeParticleListInMaterialOptionShortcut,
                          kmaC_ElectrodeParticleLayerListInMaterialOptionShortcut>(r);
}

std::vector<cow_String> kmaC_OptionListInOptionShortcut::Path() const {
  std::vector<cow_String> p = owner_.Path();
  p.push_back(member_);
  return p;
}

const kmaC_MaterialOption* kmaC_OptionListInOptionShortcut::CheckedOwner(const ddr_Model& model) const {
  const kmaC_MaterialOption* o = owner_.ConstGet(model);
  if (o && !o->IsA(kmaC_OptionTypeId(ownerClass_))) nex_ThrowCmd(refusal_);
  return o;
}

const kmaC_MaterialOptionList* kmaC_OptionListInOptionShortcut::ConstGet(const ddr_Model& model) const {
  const kmaC_MaterialOption* o = CheckedOwner(model);
  return o ? o->OptionList(member_.view()) : nullptr;
}

kmaC_MaterialOptionList& kmaC_OptionListInOptionShortcut::Get(ddr_Model& model) const {
  // Refuse before the repository records a modification.
  if (const kmaC_MaterialOption* o = CheckedOwner(model); o && !o->OptionList(member_.view()))
    ddr_RefuseShortcutPath(Path(), "the option has no such list");
  kmaC_MaterialOptionList* list = owner_.Get(model).ModifyOptionList(member_.view());
  if (!list) ddr_RefuseShortcutPath(Path(), "the option has no such list");
  return *list;
}

void kmaC_OptionListInOptionShortcut::DBWrite(const cls_WriteVisitor& w) const {
  if (!w.StartWrite(ClassTypeId(), GetUid())) return;
  w.WriteObject("owner", &owner_, [](const void* p, const cls_WriteVisitor& v) {
    static_cast<const kmaC_MaterialOptionShortcut*>(p)->DBWrite(v);
  });
  w.WriteString("member", member_);
}

kmaC_MaterialOptionShortcut kmaC_OptionListInOptionShortcut::ReadOwner(const cls_ReadVisitor& r, const char* self,
                                                                       unsigned selfTypeId) {
  if (r.GetTypeId() != selfTypeId) ddr_RefuseShortcutRecord(self, r.GetTypeId());
  std::optional<kmaC_MaterialOptionShortcut> owner;
  r.ReadObject("owner", [&](const cls_ReadVisitor& m) { owner.emplace(kmaC_MaterialOptionShortcut::Ctor(m)); });
  if (!owner) nex_ThrowCmd(std::string("A stored ") + self + " has no owner");
  return *std::move(owner);
}

// --- the Mullins effect's lists by name ---------------------------------------------------------

namespace {
const char* MullinsRefusal(const cow_String& member) {
  if (member == "uniaxialTests") return kmaC_UniaxialTestsListNames::kRefusal;
  if (member == "biaxialTests") return kmaC_BiaxialTestsListNames::kRefusal;
  if (member == "planarTests") return kmaC_PlanarTestsListNames::kRefusal;
  nex_ThrowCmd("The Mullins effect option has no list \"" + member.str() +
               "\"; its lists are uniaxialTests, biaxialTests and planarTests");
}
}  // namespace

kmaC_MaterialOptionListInMullinsEffectShortcut::kmaC_MaterialOptionListInMullinsEffectShortcut(
    kmaC_MaterialOptionShortcut owner, const cow_String& member)
    : kmaC_OptionListInOptionShortcut(std::move(owner), member, kmaC_OptionClass::MullinsEffect, MullinsRefusal(member)) {}

kmaC_MaterialOptionListInMullinsEffectShortcut kmaC_MaterialOptionListInMullinsEffectShortcut::Ctor(
    const cls_ReadVisitor& r) {
  kmaC_MaterialOptionShortcut owner = ReadOwner(r, kClassName, TypeId());
  kmaC_MaterialOptionListInMullinsEffectShortcut s(std::move(owner), r.ReadString("member"));
  s.SetUid(r.GetUid());
  return s;
}

kmaC_MaterialOptionListIMPLSC* kmaC_MaterialOptionListInMullinsEffectShortcut::Copy() const {
  return mem_New<kmaC_MaterialOptionListInMullinsEffectShortcut>(*this);
}
