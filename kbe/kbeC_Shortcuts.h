#pragma once
// Shortcuts to connector behaviors for the command layer: an option by its position in the option
// list of a section of the model's "connectorSections", and the members of an option (its table
// options, potential lists, tangential behavior, derived component). A member shortcut resolved
// against an option of the wrong kind is refused with a command exception naming the kinds that
// have the member.
#include <cstdint>
#include <vector>

#include "framework/fw_Field.h"
#include "kbe/kbeC_CDCTerm.h"
#include "kbe/kbeC_ConnectorBehaviorOption.h"
#include "kbe/kbeC_ConnectorOptions.h"
#include "kbe/kbeC_ConnectorPotential.h"
#include "kbe/kbeC_DerivedComponent.h"
#include "kbe/kbeC_TangentialBehavior.h"
#include "platform/base/cow_COW.h"
#include "platform/base/cow_List.h"
#include "platform/base/cow_String.h"
#include "platform/model/ddr_Shortcut.h"
#include "platform/model/ddr_ShortcutIMPL.h"

using kbeC_ConnectorPotentialList = cow_List<cow_COW<kbeC_ConnectorPotential>>;

// Implementation bases, one per addressed class.
class kbeC_ConnectorBehaviorOptionIMPLSC : public ddr_ShortcutIMPL<kbeC_ConnectorBehaviorOption> {
 public:
  static constexpr const char* kClassName = "kbeC_ConnectorBehaviorOptionIMPLSC";
  static constexpr unsigned TypeId() { return fw_TypeId(680, 17); }
};
class kbeC_ConnectorOptionsIMPLSC : public ddr_ShortcutIMPL<kbeC_ConnectorOptions> {
 public:
  static constexpr const char* kClassName = "kbeC_ConnectorOptionsIMPLSC";
  static constexpr unsigned TypeId() { return fw_TypeId(680, 27); }
};
class kbeC_ConnectorPotentialListIMPLSC : public ddr_ShortcutIMPL<kbeC_ConnectorPotentialList> {
 public:
  static constexpr const char* kClassName = "kbeC_ConnectorPotentialListIMPLSC";
  static constexpr const char* kAddressedName = "kbeC_ConnectorPotentialList";
  static constexpr unsigned TypeId() { return fw_TypeId(680, 38); }
};
class kbeC_DerivedComponentIMPLSC : public ddr_ShortcutIMPL<kbeC_DerivedComponent> {
 public:
  static constexpr const char* kClassName = "kbeC_DerivedComponentIMPLSC";
  static constexpr unsigned TypeId() { return fw_TypeId(680, 46); }
};
class kbeC_TangentialBehaviorIMPLSC : public ddr_ShortcutIMPL<kbeC_TangentialBehavior> {
 public:
  static constexpr const char* kClassName = "kbeC_TangentialBehaviorIMPLSC";
  static constexpr unsigned TypeId() { return fw_TypeId(680, 56); }
};

class kbeC_ConnectorPotentialIMPLSC : public ddr_ShortcutIMPL<kbeC_ConnectorPotential> {
 public:
  static constexpr const char* kClassName = "kbeC_ConnectorPotentialIMPLSC";
  static constexpr unsigned TypeId() { return fw_TypeId(680, 36); }
};
using kbeC_CDCTermList = cow_List<cow_COW<kbeC_CDCTerm>>;
class kbeC_CDCTermListIMPLSC : public ddr_ShortcutIMPL<kbeC_CDCTermList> {
 public:
  static constexpr const char* kClassName = "kbeC_CDCTermListIMPLSC";
  static constexpr const char* kAddressedName = "kbeC_CDCTermList";
  static constexpr unsigned TypeId() { return fw_TypeId(680, 52); }
};
class kbeC_CDCTermIMPLSC : public ddr_ShortcutIMPL<kbeC_CDCTerm> {
 public:
  static constexpr const char* kClassName = "kbeC_CDCTermIMPLSC";
  static constexpr unsigned TypeId() { return fw_TypeId(680, 50); }
};

// The handle of a shortcut to a list of records, as ddr_Shortcut is for objects (a list has no
// class name of its own; its IMPLSC names it for the refusal of an empty handle).
template <class Impl>
class kbeC_ListHandle {
 public:
  using IMPL = Impl;
  using Addressed = typename Impl::Addressed;
  kbeC_ListHandle() = default;
  kbeC_ListHandle(const Impl& impl) : impl_(impl) {}  // NOLINT: a concrete shortcut converts
  bool IsNull() const noexcept { return impl_.IsNull(); }
  const Impl& GetImpl() const {
    if (impl_.IsNull()) ddr_RefuseEmptyShortcut(Impl::kAddressedName);
    return impl_.Get();
  }
  cow_String Name() const { return GetImpl().Name(); }
  std::vector<cow_String> Path() const { return GetImpl().Path(); }
  const Addressed* ConstGet(const ddr_Model& model) const { return GetImpl().ConstGet(model); }
  Addressed& Get(ddr_Model& model) const { return GetImpl().Get(model); }
  void DBWrite(const cls_WriteVisitor& w) const { GetImpl().DBWrite(w); }
  friend bool operator==(const kbeC_ListHandle& a, const kbeC_ListHandle& b) {
    if (a.IsNull() || b.IsNull()) return a.IsNull() == b.IsNull();
    return a.impl_.Get().SameAddress(b.impl_.Get());
  }

 private:
  cow_COW<Impl, cow_Virtual<Impl>> impl_;
};

// An option by position in the option list of a section.
class kbeC_ConnectorBehaviorOptionInConnectorBehaviorOptionListShortcut : public kbeC_ConnectorBehaviorOptionIMPLSC {
 public:
  static constexpr const char* kClassName = "kbeC_ConnectorBehaviorOptionInConnectorBehaviorOptionListShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(680, 21); }
  kbeC_ConnectorBehaviorOptionInConnectorBehaviorOptionListShortcut(const cow_String& section, std::int32_t position)
      : section_(section), position_(position) {}
  static kbeC_ConnectorBehaviorOptionInConnectorBehaviorOptionListShortcut Ctor(const cls_ReadVisitor& r);

  kbeC_ConnectorBehaviorOptionInConnectorBehaviorOptionListShortcut* Copy() const override;
  const char* ClassName() const override { return kClassName; }
  unsigned ClassTypeId() const override { return TypeId(); }
  cow_String Name() const override;
  std::vector<cow_String> Path() const override;
  const kbeC_ConnectorBehaviorOption* ConstGet(const ddr_Model& model) const override;
  kbeC_ConnectorBehaviorOption& Get(ddr_Model& model) const override;
  void DBWrite(const cls_WriteVisitor& w) const override;

 private:
  cow_String section_;
  std::int32_t position_;
};
using kbeC_OptionInListShortcut = kbeC_ConnectorBehaviorOptionInConnectorBehaviorOptionListShortcut;

// A member of an option, reached through the option's shortcut. Member is the class that knows
// the member: its scripting name, its accessors on each kind that has it, and the refusal text.
template <class Self, class Impl, class Member>
class kbeC_OptionMemberShortcut : public Impl {
 public:
  using T = typename Impl::Addressed;
  explicit kbeC_OptionMemberShortcut(kbeC_OptionInListShortcut owner) : owner_(std::move(owner)) {}
  // Rebuilds a stored shortcut of this class.
  static Self Ctor(const cls_ReadVisitor& r);

  const kbeC_OptionInListShortcut& Owner() const noexcept { return owner_; }
  Impl* Copy() const override { return mem_New<Self>(static_cast<const Self&>(*this)); }
  const char* ClassName() const override { return Self::kClassName; }
  unsigned ClassTypeId() const override { return Self::TypeId(); }
  cow_String Name() const override { return Member::kScriptName; }
  std::vector<cow_String> Path() const override {
    std::vector<cow_String> p = owner_.Path();
    p.push_back(Name());
    return p;
  }
  // Null when the option or the member is absent; refused when the option has no such member.
  const T* ConstGet(const ddr_Model& model) const override {
    const kbeC_ConnectorBehaviorOption* o = owner_.ConstGet(model);
    return o ? Member::Find(*o) : nullptr;
  }
  T& Get(ddr_Model& model) const override {
    // Refuse before the section's repository records a modification.
    if (const kbeC_ConnectorBehaviorOption* o = owner_.ConstGet(model); o && !Member::Find(*o))
      ddr_RefuseShortcutPath(Path(), "the member is empty");
    return Member::Modify(owner_.Get(model));
  }
  void DBWrite(const cls_WriteVisitor& w) const override;

 private:
  kbeC_OptionInListShortcut owner_;
};

// The members, with the kinds that have them.
struct kbeC_OptionsMember {
  static constexpr const char* kScriptName = "options";
  static const kbeC_ConnectorOptions* Find(const kbeC_ConnectorBehaviorOption& o);
  static kbeC_ConnectorOptions& Modify(kbeC_ConnectorBehaviorOption& o);
};
struct kbeC_InitiationOptionsMember {
  static constexpr const char* kScriptName = "initiationOptions";
  static const kbeC_ConnectorOptions* Find(const kbeC_ConnectorBehaviorOption& o);
  static kbeC_ConnectorOptions& Modify(kbeC_ConnectorBehaviorOption& o);
};
struct kbeC_EvolutionOptionsMember {
  static constexpr const char* kScriptName = "evolutionOptions";
  static const kbeC_ConnectorOptions* Find(const kbeC_ConnectorBehaviorOption& o);
  static kbeC_ConnectorOptions& Modify(kbeC_ConnectorBehaviorOption& o);
};
struct kbeC_IsotropicOptionsMember {
  static constexpr const char* kScriptName = "isotropicOptions";
  static const kbeC_ConnectorOptions* Find(const kbeC_ConnectorBehaviorOption& o);
  static kbeC_ConnectorOptions& Modify(kbeC_ConnectorBehaviorOption& o);
};
struct kbeC_KinematicOptionsMember {
  static constexpr const char* kScriptName = "kinematicOptions";
  static const kbeC_ConnectorOptions* Find(const kbeC_ConnectorBehaviorOption& o);
  static kbeC_ConnectorOptions& Modify(kbeC_ConnectorBehaviorOption& o);
};
struct kbeC_InitiationPotentialsMember {
  static constexpr const char* kScriptName = "initiationPotentials";
  static const kbeC_ConnectorPotentialList* Find(const kbeC_ConnectorBehaviorOption& o);
  static kbeC_ConnectorPotentialList& Modify(kbeC_ConnectorBehaviorOption& o);
};
struct kbeC_EvolutionPotentialsMember {
  static constexpr const char* kScriptName = "evolutionPotentials";
  static const kbeC_ConnectorPotentialList* Find(const kbeC_ConnectorBehaviorOption& o);
  static kbeC_ConnectorPotentialList& Modify(kbeC_ConnectorBehaviorOption& o);
};
struct kbeC_ConnectorPotentialsMember {
  static constexpr const char* kScriptName = "connectorPotentials";
  static const kbeC_ConnectorPotentialList* Find(const kbeC_ConnectorBehaviorOption& o);
  static kbeC_ConnectorPotentialList& Modify(kbeC_ConnectorBehaviorOption& o);
};
struct kbeC_FrictionPotentialsMember {
  static constexpr const char* kScriptName = "connectorPotentials";
  static const kbeC_ConnectorPotentialList* Find(const kbeC_ConnectorBehaviorOption& o);
  static kbeC_ConnectorPotentialList& Modify(kbeC_ConnectorBehaviorOption& o);
};
struct kbeC_TangentialBehaviorMember {
  static constexpr const char* kScriptName = "tangentialBehavior";
  static const kbeC_TangentialBehavior* Find(const kbeC_ConnectorBehaviorOption& o);
  static kbeC_TangentialBehavior& Modify(kbeC_ConnectorBehaviorOption& o);
};
struct kbeC_DerivedComponentMember {
  static constexpr const char* kScriptName = "derivedComponent";
  static const kbeC_DerivedComponent* Find(const kbeC_ConnectorBehaviorOption& o);
  static kbeC_DerivedComponent& Modify(kbeC_ConnectorBehaviorOption& o);
};

class kbeC_ConnectorOptionsInConnectorBehaviorOptionShortcut
    : public kbeC_OptionMemberShortcut<kbeC_ConnectorOptionsInConnectorBehaviorOptionShortcut, kbeC_ConnectorOptionsIMPLSC, kbeC_OptionsMember> {
 public:
  static constexpr const char* kClassName = "kbeC_ConnectorOptionsInConnectorBehaviorOptionShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(680, 29); }
  using kbeC_OptionMemberShortcut::kbeC_OptionMemberShortcut;
};
class kbeC_InitiationOptionsInConnectorBehaviorOptionShortcut
    : public kbeC_OptionMemberShortcut<kbeC_InitiationOptionsInConnectorBehaviorOptionShortcut, kbeC_ConnectorOptionsIMPLSC, kbeC_InitiationOptionsMember> {
 public:
  static constexpr const char* kClassName = "kbeC_InitiationOptionsInConnectorBehaviorOptionShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(680, 30); }
  using kbeC_OptionMemberShortcut::kbeC_OptionMemberShortcut;
};
class kbeC_EvolutionOptionsInConnectorBehaviorOptionShortcut
    : public kbeC_OptionMemberShortcut<kbeC_EvolutionOptionsInConnectorBehaviorOptionShortcut, kbeC_ConnectorOptionsIMPLSC, kbeC_EvolutionOptionsMember> {
 public:
  static constexpr const char* kClassName = "kbeC_EvolutionOptionsInConnectorBehaviorOptionShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(680, 32); }
  using kbeC_OptionMemberShortcut::kbeC_OptionMemberShortcut;
};
class kbeC_IsotropicOptionsInConnectorBehaviorOptionShortcut
    : public kbeC_OptionMemberShortcut<kbeC_IsotropicOptionsInConnectorBehaviorOptionShortcut, kbeC_ConnectorOptionsIMPLSC, kbeC_IsotropicOptionsMember> {
 public:
  static constexpr const char* kClassName = "kbeC_IsotropicOptionsInConnectorBehaviorOptionShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(680, 33); }
  using kbeC_OptionMemberShortcut::kbeC_OptionMemberShortcut;
};
class kbeC_KinematicOptionsInConnectorBehaviorOptionShortcut
    : public kbeC_OptionMemberShortcut<kbeC_KinematicOptionsInConnectorBehaviorOptionShortcut, kbeC_ConnectorOptionsIMPLSC, kbeC_KinematicOptionsMember> {
 public:
  static constexpr const char* kClassName = "kbeC_KinematicOptionsInConnectorBehaviorOptionShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(680, 34); }
  using kbeC_OptionMemberShortcut::kbeC_OptionMemberShortcut;
};
class kbeC_InitiationPotentialsListInConnectorBehaviorOptionShortcut
    : public kbeC_OptionMemberShortcut<kbeC_InitiationPotentialsListInConnectorBehaviorOptionShortcut, kbeC_ConnectorPotentialListIMPLSC, kbeC_InitiationPotentialsMember> {
 public:
  static constexpr const char* kClassName = "kbeC_InitiationPotentialsListInConnectorBehaviorOptionShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(680, 41); }
  using kbeC_OptionMemberShortcut::kbeC_OptionMemberShortcut;
};
class kbeC_EvolutionPotentialsListInConnectorBehaviorOptionShortcut
    : public kbeC_OptionMemberShortcut<kbeC_EvolutionPotentialsListInConnectorBehaviorOptionShortcut, kbeC_ConnectorPotentialListIMPLSC, kbeC_EvolutionPotentialsMember> {
 public:
  static constexpr const char* kClassName = "kbeC_EvolutionPotentialsListInConnectorBehaviorOptionShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(680, 42); }
  using kbeC_OptionMemberShortcut::kbeC_OptionMemberShortcut;
};
class kbeC_ConnectPotentialsListInConnectorBehaviorOptionShortcut
    : public kbeC_OptionMemberShortcut<kbeC_ConnectPotentialsListInConnectorBehaviorOptionShortcut, kbeC_ConnectorPotentialListIMPLSC, kbeC_ConnectorPotentialsMember> {
 public:
  static constexpr const char* kClassName = "kbeC_ConnectPotentialsListInConnectorBehaviorOptionShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(680, 43); }
  using kbeC_OptionMemberShortcut::kbeC_OptionMemberShortcut;
};
class kbeC_ConnectPotentialsListInConnectorFrictionShortcut
    : public kbeC_OptionMemberShortcut<kbeC_ConnectPotentialsListInConnectorFrictionShortcut, kbeC_ConnectorPotentialListIMPLSC, kbeC_FrictionPotentialsMember> {
 public:
  static constexpr const char* kClassName = "kbeC_ConnectPotentialsListInConnectorFrictionShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(680, 44); }
  using kbeC_OptionMemberShortcut::kbeC_OptionMemberShortcut;
};
class kbeC_TangentialBehaviorInConnectorBehaviorOptionShortcut
    : public kbeC_OptionMemberShortcut<kbeC_TangentialBehaviorInConnectorBehaviorOptionShortcut, kbeC_TangentialBehaviorIMPLSC, kbeC_TangentialBehaviorMember> {
 public:
  static constexpr const char* kClassName = "kbeC_TangentialBehaviorInConnectorBehaviorOptionShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(680, 58); }
  using kbeC_OptionMemberShortcut::kbeC_OptionMemberShortcut;
};
class kbeC_DerivedComponentInConnectorBehaviorOptionShortcut
    : public kbeC_OptionMemberShortcut<kbeC_DerivedComponentInConnectorBehaviorOptionShortcut, kbeC_DerivedComponentIMPLSC, kbeC_DerivedComponentMember> {
 public:
  static constexpr const char* kClassName = "kbeC_DerivedComponentInConnectorBehaviorOptionShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(680, 49); }
  using kbeC_OptionMemberShortcut::kbeC_OptionMemberShortcut;
};

// Handles: a shortcut to an object of the addressed class, whichever concrete shortcut reaches it.
class kbeC_ConnectorBehaviorOptionShortcut : public ddr_Shortcut<kbeC_ConnectorBehaviorOptionIMPLSC> {
 public:
  static constexpr const char* kClassName = "kbeC_ConnectorBehaviorOptionShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(680, 18); }
  using ddr_Shortcut::ddr_Shortcut;
  static kbeC_ConnectorBehaviorOptionShortcut Ctor(const cls_ReadVisitor& r);
};
class kbeC_ConnectorOptionsShortcut : public ddr_Shortcut<kbeC_ConnectorOptionsIMPLSC> {
 public:
  static constexpr const char* kClassName = "kbeC_ConnectorOptionsShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(680, 28); }
  using ddr_Shortcut::ddr_Shortcut;
  static kbeC_ConnectorOptionsShortcut Ctor(const cls_ReadVisitor& r);
};
class kbeC_ConnectorPotentialListShortcut : public kbeC_ListHandle<kbeC_ConnectorPotentialListIMPLSC> {
 public:
  static constexpr const char* kClassName = "kbeC_ConnectorPotentialListShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(680, 39); }
  using kbeC_ListHandle::kbeC_ListHandle;
  static kbeC_ConnectorPotentialListShortcut Ctor(const cls_ReadVisitor& r);
};
class kbeC_DerivedComponentShortcut : public ddr_Shortcut<kbeC_DerivedComponentIMPLSC> {
 public:
  static constexpr const char* kClassName = "kbeC_DerivedComponentShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(680, 47); }
  using ddr_Shortcut::ddr_Shortcut;
  static kbeC_DerivedComponentShortcut Ctor(const cls_ReadVisitor& r);
};
class kbeC_TangentialBehaviorShortcut : public ddr_Shortcut<kbeC_TangentialBehaviorIMPLSC> {
 public:
  static constexpr const char* kClassName = "kbeC_TangentialBehaviorShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(680, 57); }
  using ddr_Shortcut::ddr_Shortcut;
  static kbeC_TangentialBehaviorShortcut Ctor(const cls_ReadVisitor& r);
};

class kbeC_ConnectorPotentialShortcut : public ddr_Shortcut<kbeC_ConnectorPotentialIMPLSC> {
 public:
  static constexpr const char* kClassName = "kbeC_ConnectorPotentialShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(680, 37); }
  using ddr_Shortcut::ddr_Shortcut;
  static kbeC_ConnectorPotentialShortcut Ctor(const cls_ReadVisitor& r);
};
class kbeC_CDCTermListShortcut : public kbeC_ListHandle<kbeC_CDCTermListIMPLSC> {
 public:
  static constexpr const char* kClassName = "kbeC_CDCTermListShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(680, 53); }
  using kbeC_ListHandle::kbeC_ListHandle;
  static kbeC_CDCTermListShortcut Ctor(const cls_ReadVisitor& r);
};
class kbeC_CDCTermShortcut : public ddr_Shortcut<kbeC_CDCTermIMPLSC> {
 public:
  static constexpr const char* kClassName = "kbeC_CDCTermShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(680, 51); }
  using ddr_Shortcut::ddr_Shortcut;
  static kbeC_CDCTermShortcut Ctor(const cls_ReadVisitor& r);
};

// A shortcut one step below another: a member of the owner's object (Step::Find and
// Step::Modify, named Step::kScriptName) or, with an index, an element of the owner's list.
template <class Self, class Impl, class OwnerHandle, class Step>
class kbeC_ChildShortcut : public Impl {
 public:
  using T = typename Impl::Addressed;
  explicit kbeC_ChildShortcut(OwnerHandle owner, std::int32_t index = -1) : owner_(std::move(owner)), index_(index) {}
  static Self Ctor(const cls_ReadVisitor& r);

  Impl* Copy() const override { return mem_New<Self>(static_cast<const Self&>(*this)); }
  const char* ClassName() const override { return Self::kClassName; }
  unsigned ClassTypeId() const override { return Self::TypeId(); }
  cow_String Name() const override;
  std::vector<cow_String> Path() const override {
    std::vector<cow_String> p = owner_.Path();
    p.push_back(Name());
    return p;
  }
  const T* ConstGet(const ddr_Model& model) const override;
  T& Get(ddr_Model& model) const override;
  void DBWrite(const cls_WriteVisitor& w) const override;

 private:
  OwnerHandle owner_;
  std::int32_t index_;
};

struct kbeC_PotentialElementStep;
struct kbeC_PotentialDerivedStep;
struct kbeC_TermsStep;
struct kbeC_TermElementStep;
struct kbeC_TermOptionsStep;

class kbeC_ConnectorPotentialInConnectorPotentialListShortcut
    : public kbeC_ChildShortcut<kbeC_ConnectorPotentialInConnectorPotentialListShortcut, kbeC_ConnectorPotentialIMPLSC,
                                kbeC_ConnectorPotentialListShortcut, kbeC_PotentialElementStep> {
 public:
  static constexpr const char* kClassName = "kbeC_ConnectorPotentialInConnectorPotentialListShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(680, 40); }
  using kbeC_ChildShortcut::kbeC_ChildShortcut;
};
class kbeC_DerivedComponentInConnectorPotentialShortcut
    : public kbeC_ChildShortcut<kbeC_DerivedComponentInConnectorPotentialShortcut, kbeC_DerivedComponentIMPLSC,
                                kbeC_ConnectorPotentialShortcut, kbeC_PotentialDerivedStep> {
 public:
  static constexpr const char* kClassName = "kbeC_DerivedComponentInConnectorPotentialShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(680, 48); }
  using kbeC_ChildShortcut::kbeC_ChildShortcut;
};
class kbeC_CdcTermsListInDerivedComponentShortcut
    : public kbeC_ChildShortcut<kbeC_CdcTermsListInDerivedComponentShortcut, kbeC_CDCTermListIMPLSC,
                                kbeC_DerivedComponentShortcut, kbeC_TermsStep> {
 public:
  static constexpr const char* kClassName = "kbeC_CdcTermsListInDerivedComponentShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(680, 55); }
  using kbeC_ChildShortcut::kbeC_ChildShortcut;
};
class kbeC_CDCTermInCDCTermListShortcut
    : public kbeC_ChildShortcut<kbeC_CDCTermInCDCTermListShortcut, kbeC_CDCTermIMPLSC, kbeC_CDCTermListShortcut,
                                kbeC_TermElementStep> {
 public:
  static constexpr const char* kClassName = "kbeC_CDCTermInCDCTermListShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(680, 54); }
  using kbeC_ChildShortcut::kbeC_ChildShortcut;
};
class kbeC_ConnectorOptionsInCDCTermShortcut
    : public kbeC_ChildShortcut<kbeC_ConnectorOptionsInCDCTermShortcut, kbeC_ConnectorOptionsIMPLSC, kbeC_CDCTermShortcut,
                                kbeC_TermOptionsStep> {
 public:
  static constexpr const char* kClassName = "kbeC_ConnectorOptionsInCDCTermShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(680, 35); }
  using kbeC_ChildShortcut::kbeC_ChildShortcut;
};
