#include "kbe/kbeC_Shortcuts.h"

#include <optional>
#include <string>

#include "kbe/kbeC_ConnectorDamage.h"
#include "kbe/kbeC_ConnectorDamping.h"
#include "kbe/kbeC_ConnectorElasticity.h"
#include "kbe/kbeC_ConnectorFriction.h"
#include "kbe/kbeC_ConnectorPlasticity.h"
#include "kbe/kbeC_ConnectorSectionContainer.h"
#include "kbe/kbeC_OptionListShortcuts.h"
#include "platform/base/nex_Exception.h"
#include "platform/model/ddr_Model.h"
#include "platform/persist/cls_Visitor.h"

// --- an option by position --------------------------------------------------------------------

namespace {
const char* const kSections = "connectorSections";
const char* const kOptions = "behaviorOptions";
}  // namespace

kbeC_OptionInListShortcut kbeC_OptionInListShortcut::Ctor(const cls_ReadVisitor& r) {
  if (r.GetTypeId() != TypeId()) ddr_RefuseShortcutRecord(kClassName, r.GetTypeId());
  kbeC_OptionInListShortcut s(r.ReadString("section"), r.ReadInt("position"));
  s.SetUid(r.GetUid());
  return s;
}

kbeC_OptionInListShortcut* kbeC_OptionInListShortcut::Copy() const { return mem_New<kbeC_OptionInListShortcut>(*this); }

cow_String kbeC_OptionInListShortcut::Name() const { return cow_String(std::to_string(position_)); }

std::vector<cow_String> kbeC_OptionInListShortcut::Path() const {
  return {cow_String(kSections), section_, cow_String(kOptions), Name()};
}

const kbeC_ConnectorBehaviorOption* kbeC_OptionInListShortcut::ConstGet(const ddr_Model& model) const {
  const auto* sections = dynamic_cast<const kbeC_ConnectorSectionContainer*>(model.FindRepository(kSections));
  const kbeC_ConnectorSection* section = sections ? sections->ConstGet(section_) : nullptr;
  if (!section || position_ < 0 || static_cast<std::size_t>(position_) >= section->GetBehaviorOptions().size()) return nullptr;
  const auto& h = section->GetBehaviorOptions()[static_cast<std::size_t>(position_)];
  return h.IsNull() ? nullptr : &h.Get();
}

kbeC_ConnectorBehaviorOption& kbeC_OptionInListShortcut::Get(ddr_Model& model) const {
  if (!ConstGet(model)) ddr_RefuseShortcutPath(Path(), "there is no option at that position");
  auto* sections = dynamic_cast<kbeC_ConnectorSectionContainer*>(model.ModifyRepository(kSections));
  return sections->Get(section_).ModifyBehaviorOption(static_cast<std::size_t>(position_));
}

void kbeC_OptionInListShortcut::DBWrite(const cls_WriteVisitor& w) const {
  if (!w.StartWrite(TypeId(), GetUid())) return;
  w.WriteString("section", section_);
  w.WriteInt("position", position_);
}

template <class Self, class Impl, class Member>
Self kbeC_OptionMemberShortcut<Self, Impl, Member>::Ctor(const cls_ReadVisitor& r) {
  if (r.GetTypeId() != Self::TypeId()) ddr_RefuseShortcutRecord(Self::kClassName, r.GetTypeId());
  std::optional<kbeC_OptionInListShortcut> owner;
  r.ReadObject("owner", [&](const cls_ReadVisitor& m) { owner.emplace(kbeC_OptionInListShortcut::Ctor(m)); });
  if (!owner) nex_ThrowCmd(std::string("A stored ") + Self::kClassName + " has no owner");
  Self s(*std::move(owner));
  s.SetUid(r.GetUid());
  return s;
}

template <class Self, class Impl, class Member>
void kbeC_OptionMemberShortcut<Self, Impl, Member>::DBWrite(const cls_WriteVisitor& w) const {
  if (!w.StartWrite(Self::TypeId(), this->GetUid())) return;
  w.WriteObject("owner", &owner_, [](const void* p, const cls_WriteVisitor& v) {
    static_cast<const kbeC_OptionInListShortcut*>(p)->DBWrite(v);
  });
}

template class kbeC_OptionMemberShortcut<kbeC_ConnectorOptionsInConnectorBehaviorOptionShortcut, kbeC_ConnectorOptionsIMPLSC, kbeC_OptionsMember>;
template class kbeC_OptionMemberShortcut<kbeC_InitiationOptionsInConnectorBehaviorOptionShortcut, kbeC_ConnectorOptionsIMPLSC, kbeC_InitiationOptionsMember>;
template class kbeC_OptionMemberShortcut<kbeC_EvolutionOptionsInConnectorBehaviorOptionShortcut, kbeC_ConnectorOptionsIMPLSC, kbeC_EvolutionOptionsMember>;
template class kbeC_OptionMemberShortcut<kbeC_IsotropicOptionsInConnectorBehaviorOptionShortcut, kbeC_ConnectorOptionsIMPLSC, kbeC_IsotropicOptionsMember>;
template class kbeC_OptionMemberShortcut<kbeC_KinematicOptionsInConnectorBehaviorOptionShortcut, kbeC_ConnectorOptionsIMPLSC, kbeC_KinematicOptionsMember>;
template class kbeC_OptionMemberShortcut<kbeC_InitiationPotentialsListInConnectorBehaviorOptionShortcut, kbeC_ConnectorPotentialListIMPLSC, kbeC_InitiationPotentialsMember>;
template class kbeC_OptionMemberShortcut<kbeC_EvolutionPotentialsListInConnectorBehaviorOptionShortcut, kbeC_ConnectorPotentialListIMPLSC, kbeC_EvolutionPotentialsMember>;
template class kbeC_OptionMemberShortcut<kbeC_ConnectPotentialsListInConnectorBehaviorOptionShortcut, kbeC_ConnectorPotentialListIMPLSC, kbeC_ConnectorPotentialsMember>;
template class kbeC_OptionMemberShortcut<kbeC_ConnectPotentialsListInConnectorFrictionShortcut, kbeC_ConnectorPotentialListIMPLSC, kbeC_FrictionPotentialsMember>;
template class kbeC_OptionMemberShortcut<kbeC_TangentialBehaviorInConnectorBehaviorOptionShortcut, kbeC_TangentialBehaviorIMPLSC, kbeC_TangentialBehaviorMember>;
template class kbeC_OptionMemberShortcut<kbeC_DerivedComponentInConnectorBehaviorOptionShortcut, kbeC_DerivedComponentIMPLSC, kbeC_DerivedComponentMember>;

// --- the members ----------------------------------------------------------------------------------

namespace {
[[noreturn]] void Refuse(const char* text) { nex_ThrowCmd(text); }

// The kind an option must be for a member; refused with the member's text otherwise.
template <class K>
const K* As(const kbeC_ConnectorBehaviorOption& o) {
  return dynamic_cast<const K*>(&o);
}
template <class K>
K* As(kbeC_ConnectorBehaviorOption& o) {
  return dynamic_cast<K*>(&o);
}


const char* const kOptionsText =
    "ConnectorOptions exists only for ConnectorDamping, ConnectorElasticity, or ConnectorFriction objects.";
const char* const kPotentialsText = "ConnectorPotentials exists only for ConnectorFriction or ConnectorPlasticity object.";
}  // namespace

// Each Find reads the member through the kind's own accessors; Modify goes through the kind's
// Modify accessors, which separate a shared copy first.
const kbeC_ConnectorOptions* kbeC_OptionsMember::Find(const kbeC_ConnectorBehaviorOption& o) {
  if (auto* e = As<kbeC_ConnectorElasticity>(o)) return e->HasOptions() ? &e->GetOptions() : nullptr;
  if (auto* d = As<kbeC_ConnectorDamping>(o)) return d->HasOptions() ? &d->GetOptions() : nullptr;
  if (auto* f = As<kbeC_ConnectorFriction>(o)) return f->HasOptions() ? &f->GetOptions() : nullptr;
  Refuse(kOptionsText);
}
kbeC_ConnectorOptions& kbeC_OptionsMember::Modify(kbeC_ConnectorBehaviorOption& o) {
  if (auto* e = As<kbeC_ConnectorElasticity>(o)) return e->ModifyOptions();
  if (auto* d = As<kbeC_ConnectorDamping>(o)) return d->ModifyOptions();
  if (auto* f = As<kbeC_ConnectorFriction>(o)) return f->ModifyOptions();
  Refuse(kOptionsText);
}

const kbeC_ConnectorOptions* kbeC_InitiationOptionsMember::Find(const kbeC_ConnectorBehaviorOption& o) {
  if (auto* d = As<kbeC_ConnectorDamage>(o)) return d->HasInitiationOptions() ? &d->GetInitiationOptions() : nullptr;
  Refuse("initiationOptions exists only for the ConnectorDamage object.");
}
kbeC_ConnectorOptions& kbeC_InitiationOptionsMember::Modify(kbeC_ConnectorBehaviorOption& o) {
  if (auto* d = As<kbeC_ConnectorDamage>(o)) return d->ModifyInitiationOptions();
  Refuse("initiationOptions exists only for the ConnectorDamage object.");
}

const kbeC_ConnectorOptions* kbeC_EvolutionOptionsMember::Find(const kbeC_ConnectorBehaviorOption& o) {
  if (auto* d = As<kbeC_ConnectorDamage>(o)) return d->HasEvolutionOptions() ? &d->GetEvolutionOptions() : nullptr;
  Refuse("evolutionOptions exists only for the ConnectorDamage object.");
}
kbeC_ConnectorOptions& kbeC_EvolutionOptionsMember::Modify(kbeC_ConnectorBehaviorOption& o) {
  if (auto* d = As<kbeC_ConnectorDamage>(o)) return d->ModifyEvolutionOptions();
  Refuse("evolutionOptions exists only for the ConnectorDamage object.");
}

const kbeC_ConnectorOptions* kbeC_IsotropicOptionsMember::Find(const kbeC_ConnectorBehaviorOption& o) {
  if (auto* p = As<kbeC_ConnectorPlasticity>(o)) return p->HasIsotropicOptions() ? &p->GetIsotropicOptions() : nullptr;
  Refuse("isotropicOptions exists only for the ConnectorPlasticity object.");
}
kbeC_ConnectorOptions& kbeC_IsotropicOptionsMember::Modify(kbeC_ConnectorBehaviorOption& o) {
  if (auto* p = As<kbeC_ConnectorPlasticity>(o)) return p->ModifyIsotropicOptions();
  Refuse("isotropicOptions exists only for the ConnectorPlasticity object.");
}

const kbeC_ConnectorOptions* kbeC_KinematicOptionsMember::Find(const kbeC_ConnectorBehaviorOption& o) {
  if (auto* p = As<kbeC_ConnectorPlasticity>(o)) return p->HasKinematicOptions() ? &p->GetKinematicOptions() : nullptr;
  Refuse("kinematicOptions exists only for the ConnectorPlasticity object.");
}
kbeC_ConnectorOptions& kbeC_KinematicOptionsMember::Modify(kbeC_ConnectorBehaviorOption& o) {
  if (auto* p = As<kbeC_ConnectorPlasticity>(o)) return p->ModifyKinematicOptions();
  Refuse("kinematicOptions exists only for the ConnectorPlasticity object.");
}

const kbeC_ConnectorPotentialList* kbeC_InitiationPotentialsMember::Find(const kbeC_ConnectorBehaviorOption& o) {
  if (auto* d = As<kbeC_ConnectorDamage>(o)) return &d->GetInitiationPotentials();
  Refuse("InitiationPotentials exists only for ConnectorDamage object.");
}
kbeC_ConnectorPotentialList& kbeC_InitiationPotentialsMember::Modify(kbeC_ConnectorBehaviorOption& o) {
  if (auto* d = As<kbeC_ConnectorDamage>(o)) return d->ModifyInitiationPotentials();
  Refuse("InitiationPotentials exists only for ConnectorDamage object.");
}

const kbeC_ConnectorPotentialList* kbeC_EvolutionPotentialsMember::Find(const kbeC_ConnectorBehaviorOption& o) {
  if (auto* d = As<kbeC_ConnectorDamage>(o)) return &d->GetEvolutionPotentials();
  Refuse("EvolutionPotentials exists only for ConnectorDamage object.");
}
kbeC_ConnectorPotentialList& kbeC_EvolutionPotentialsMember::Modify(kbeC_ConnectorBehaviorOption& o) {
  if (auto* d = As<kbeC_ConnectorDamage>(o)) return d->ModifyEvolutionPotentials();
  Refuse("EvolutionPotentials exists only for ConnectorDamage object.");
}

const kbeC_ConnectorPotentialList* kbeC_ConnectorPotentialsMember::Find(const kbeC_ConnectorBehaviorOption& o) {
  if (auto* f = As<kbeC_ConnectorFriction>(o)) return &f->GetConnectorPotentials();
  if (auto* p = As<kbeC_ConnectorPlasticity>(o)) return &p->GetConnectorPotentials();
  Refuse(kPotentialsText);
}
kbeC_ConnectorPotentialList& kbeC_ConnectorPotentialsMember::Modify(kbeC_ConnectorBehaviorOption& o) {
  if (auto* f = As<kbeC_ConnectorFriction>(o)) return f->ModifyConnectorPotentials();
  if (auto* p = As<kbeC_ConnectorPlasticity>(o)) return p->ModifyConnectorPotentials();
  Refuse(kPotentialsText);
}

// The friction-only form of the same member refuses a plasticity too.
const kbeC_ConnectorPotentialList* kbeC_FrictionPotentialsMember::Find(const kbeC_ConnectorBehaviorOption& o) {
  if (auto* f = As<kbeC_ConnectorFriction>(o)) return &f->GetConnectorPotentials();
  Refuse(kPotentialsText);
}
kbeC_ConnectorPotentialList& kbeC_FrictionPotentialsMember::Modify(kbeC_ConnectorBehaviorOption& o) {
  if (auto* f = As<kbeC_ConnectorFriction>(o)) return f->ModifyConnectorPotentials();
  Refuse(kPotentialsText);
}

const kbeC_TangentialBehavior* kbeC_TangentialBehaviorMember::Find(const kbeC_ConnectorBehaviorOption& o) {
  if (auto* f = As<kbeC_ConnectorFriction>(o)) return f->HasTangentialBehavior() ? &f->GetTangentialBehavior() : nullptr;
  Refuse("TangentialBehavior exists only for ConnectorFriction object.");
}
kbeC_TangentialBehavior& kbeC_TangentialBehaviorMember::Modify(kbeC_ConnectorBehaviorOption& o) {
  if (auto* f = As<kbeC_ConnectorFriction>(o)) return f->ModifyTangentialBehavior();
  Refuse("TangentialBehavior exists only for ConnectorFriction object.");
}

const kbeC_DerivedComponent* kbeC_DerivedComponentMember::Find(const kbeC_ConnectorBehaviorOption& o) {
  if (auto* f = As<kbeC_ConnectorFriction>(o)) return f->HasDerivedComponent() ? &f->GetDerivedComponent() : nullptr;
  Refuse("DerivedComponent exists only for ConnectorFriction object.");
}
kbeC_DerivedComponent& kbeC_DerivedComponentMember::Modify(kbeC_ConnectorBehaviorOption& o) {
  if (auto* f = As<kbeC_ConnectorFriction>(o)) return f->ModifyDerivedComponent();
  Refuse("DerivedComponent exists only for ConnectorFriction object.");
}

namespace {
template <class Member>
void kbeC_FindByStep(const kbeC_ConnectorBehaviorOption& o, std::string_view step) {
  if (step == Member::kScriptName) Member::Find(o);  // refuses an option of the wrong kind
}
}  // namespace

void kbeC_ConnectorBehaviorOption::RefuseUnknownStep(const kbeC_ConnectorBehaviorOption& o, std::string_view step) {
  kbeC_FindByStep<kbeC_OptionsMember>(o, step);
  kbeC_FindByStep<kbeC_InitiationOptionsMember>(o, step);
  kbeC_FindByStep<kbeC_EvolutionOptionsMember>(o, step);
  kbeC_FindByStep<kbeC_IsotropicOptionsMember>(o, step);
  kbeC_FindByStep<kbeC_KinematicOptionsMember>(o, step);
  kbeC_FindByStep<kbeC_InitiationPotentialsMember>(o, step);
  kbeC_FindByStep<kbeC_EvolutionPotentialsMember>(o, step);
  kbeC_FindByStep<kbeC_ConnectorPotentialsMember>(o, step);
  kbeC_FindByStep<kbeC_TangentialBehaviorMember>(o, step);
  kbeC_FindByStep<kbeC_DerivedComponentMember>(o, step);
}

// --- handles ------------------------------------------------------------------------------------

kbeC_ConnectorBehaviorOptionShortcut kbeC_ConnectorBehaviorOptionShortcut::Ctor(const cls_ReadVisitor& r) {
  return ddr_ShortcutCtor<kbeC_ConnectorBehaviorOptionShortcut, kbeC_OptionInListShortcut,
                          kbeC_ConnectorBehaviorOptionInConnectorBehaviorListShortcut>(r);
}
kbeC_ConnectorOptionsShortcut kbeC_ConnectorOptionsShortcut::Ctor(const cls_ReadVisitor& r) {
  return ddr_ShortcutCtor<kbeC_ConnectorOptionsShortcut, kbeC_ConnectorOptionsInConnectorBehaviorOptionShortcut,
                          kbeC_InitiationOptionsInConnectorBehaviorOptionShortcut, kbeC_EvolutionOptionsInConnectorBehaviorOptionShortcut,
                          kbeC_IsotropicOptionsInConnectorBehaviorOptionShortcut, kbeC_KinematicOptionsInConnectorBehaviorOptionShortcut,
                          kbeC_ConnectorOptionsInCDCTermShortcut>(r);
}
kbeC_ConnectorPotentialListShortcut kbeC_ConnectorPotentialListShortcut::Ctor(const cls_ReadVisitor& r) {
  return ddr_ShortcutCtor<kbeC_ConnectorPotentialListShortcut, kbeC_InitiationPotentialsListInConnectorBehaviorOptionShortcut,
                          kbeC_EvolutionPotentialsListInConnectorBehaviorOptionShortcut,
                          kbeC_ConnectPotentialsListInConnectorBehaviorOptionShortcut,
                          kbeC_ConnectPotentialsListInConnectorFrictionShortcut>(r);
}
kbeC_DerivedComponentShortcut kbeC_DerivedComponentShortcut::Ctor(const cls_ReadVisitor& r) {
  return ddr_ShortcutCtor<kbeC_DerivedComponentShortcut, kbeC_DerivedComponentInConnectorBehaviorOptionShortcut,
                          kbeC_DerivedComponentInConnectorPotentialShortcut>(r);
}
kbeC_TangentialBehaviorShortcut kbeC_TangentialBehaviorShortcut::Ctor(const cls_ReadVisitor& r) {
  return ddr_ShortcutCtor<kbeC_TangentialBehaviorShortcut, kbeC_TangentialBehaviorInConnectorBehaviorOptionShortcut>(r);
}
kbeC_ConnectorPotentialShortcut kbeC_ConnectorPotentialShortcut::Ctor(const cls_ReadVisitor& r) {
  return ddr_ShortcutCtor<kbeC_ConnectorPotentialShortcut, kbeC_ConnectorPotentialInConnectorPotentialListShortcut>(r);
}
kbeC_CDCTermListShortcut kbeC_CDCTermListShortcut::Ctor(const cls_ReadVisitor& r) {
  return ddr_ShortcutCtor<kbeC_CDCTermListShortcut, kbeC_CdcTermsListInDerivedComponentShortcut>(r);
}
kbeC_CDCTermShortcut kbeC_CDCTermShortcut::Ctor(const cls_ReadVisitor& r) {
  return ddr_ShortcutCtor<kbeC_CDCTermShortcut, kbeC_CDCTermInCDCTermListShortcut>(r);
}

// --- steps below potentials and derived components -------------------------------------------------

namespace {
// The element at a position of a list of handles; null outside the list or for a null element.
template <class E>
const E* ElementAt(const cow_List<cow_COW<E>>& list, std::int32_t i) {
  if (i < 0 || static_cast<std::size_t>(i) >= list.size() || list[static_cast<std::size_t>(i)].IsNull()) return nullptr;
  return &list[static_cast<std::size_t>(i)].Get();
}
}  // namespace

struct kbeC_PotentialElementStep {
  static constexpr const char* kScriptName = "";
  static const kbeC_ConnectorPotential* Find(const kbeC_ConnectorPotentialList& l, std::int32_t i) { return ElementAt(l, i); }
  static kbeC_ConnectorPotential& Modify(kbeC_ConnectorPotentialList& l, std::int32_t i) {
    return l.Get(static_cast<std::size_t>(i)).Get();
  }
};
struct kbeC_PotentialDerivedStep {
  static constexpr const char* kScriptName = "derivedComponent";
  static const kbeC_DerivedComponent* Find(const kbeC_ConnectorPotential& p, std::int32_t) {
    return p.HasDerivedComponent() ? &p.GetDerivedComponent() : nullptr;
  }
  static kbeC_DerivedComponent& Modify(kbeC_ConnectorPotential& p, std::int32_t) { return p.ModifyDerivedComponent(); }
};
struct kbeC_TermsStep {
  static constexpr const char* kScriptName = "cdcTerms";
  static const kbeC_CDCTermList* Find(const kbeC_DerivedComponent& d, std::int32_t) { return &d.GetCdcTerms(); }
  static kbeC_CDCTermList& Modify(kbeC_DerivedComponent& d, std::int32_t) { return d.ModifyCdcTerms(); }
};
struct kbeC_TermElementStep {
  static constexpr const char* kScriptName = "";
  static const kbeC_CDCTerm* Find(const kbeC_CDCTermList& l, std::int32_t i) { return ElementAt(l, i); }
  static kbeC_CDCTerm& Modify(kbeC_CDCTermList& l, std::int32_t i) { return l.Get(static_cast<std::size_t>(i)).Get(); }
};
struct kbeC_TermOptionsStep {
  static constexpr const char* kScriptName = "options";
  static const kbeC_ConnectorOptions* Find(const kbeC_CDCTerm& t, std::int32_t) { return t.HasOptions() ? &t.GetOptions() : nullptr; }
  static kbeC_ConnectorOptions& Modify(kbeC_CDCTerm& t, std::int32_t) { return t.ModifyOptions(); }
};

template <class Self, class Impl, class OwnerHandle, class Step>
Self kbeC_ChildShortcut<Self, Impl, OwnerHandle, Step>::Ctor(const cls_ReadVisitor& r) {
  if (r.GetTypeId() != Self::TypeId()) ddr_RefuseShortcutRecord(Self::kClassName, r.GetTypeId());
  std::optional<OwnerHandle> owner;
  r.ReadObject("owner", [&](const cls_ReadVisitor& m) { owner.emplace(OwnerHandle::Ctor(m)); });
  if (!owner) nex_ThrowCmd(std::string("A stored ") + Self::kClassName + " has no owner");
  Self s(*std::move(owner), r.ReadInt("index"));
  s.SetUid(r.GetUid());
  return s;
}

template <class Self, class Impl, class OwnerHandle, class Step>
cow_String kbeC_ChildShortcut<Self, Impl, OwnerHandle, Step>::Name() const {
  return *Step::kScriptName ? cow_String(Step::kScriptName) : cow_String(std::to_string(index_));
}

template <class Self, class Impl, class OwnerHandle, class Step>
auto kbeC_ChildShortcut<Self, Impl, OwnerHandle, Step>::ConstGet(const ddr_Model& model) const -> const T* {
  const auto* o = owner_.ConstGet(model);
  return o ? Step::Find(*o, index_) : nullptr;
}

template <class Self, class Impl, class OwnerHandle, class Step>
auto kbeC_ChildShortcut<Self, Impl, OwnerHandle, Step>::Get(ddr_Model& model) const -> T& {
  // Refuse before the repositories on the way record a modification.
  if (!ConstGet(model)) ddr_RefuseShortcutPath(Path(), "it names nothing");
  return Step::Modify(owner_.Get(model), index_);
}

template <class Self, class Impl, class OwnerHandle, class Step>
void kbeC_ChildShortcut<Self, Impl, OwnerHandle, Step>::DBWrite(const cls_WriteVisitor& w) const {
  if (!w.StartWrite(Self::TypeId(), this->GetUid())) return;
  w.WriteObject("owner", &owner_, [](const void* p, const cls_WriteVisitor& v) { static_cast<const OwnerHandle*>(p)->DBWrite(v); });
  w.WriteInt("index", index_);
}

template class kbeC_ChildShortcut<kbeC_ConnectorPotentialInConnectorPotentialListShortcut, kbeC_ConnectorPotentialIMPLSC,
                                  kbeC_ConnectorPotentialListShortcut, kbeC_PotentialElementStep>;
template class kbeC_ChildShortcut<kbeC_DerivedComponentInConnectorPotentialShortcut, kbeC_DerivedComponentIMPLSC,
                                  kbeC_ConnectorPotentialShortcut, kbeC_PotentialDerivedStep>;
template class kbeC_ChildShortcut<kbeC_CdcTermsListInDerivedComponentShortcut, kbeC_CDCTermListIMPLSC,
                                  kbeC_DerivedComponentShortcut, kbeC_TermsStep>;
template class kbeC_ChildShortcut<kbeC_CDCTermInCDCTermListShortcut, kbeC_CDCTermIMPLSC, kbeC_CDCTermListShortcut,
                                  kbeC_TermElementStep>;
template class kbeC_ChildShortcut<kbeC_ConnectorOptionsInCDCTermShortcut, kbeC_ConnectorOptionsIMPLSC, kbeC_CDCTermShortcut,
                                  kbeC_TermOptionsStep>;
