#pragma once
// The shortcuts to the list members of options, each reached through the shortcut of the option
// that owns the list. A list exists only on its own kind of option; on any other the shortcut is
// refused with that list's message when it resolves.
#include "kma/kmaC_MaterialOptionListIMPLSC.h"
#include "kma/kmaC_MaterialOptionShortcut.h"

// The common part: the owner, the list's member name, the owner class it needs and the refusal.
class kmaC_OptionListInOptionShortcut : public kmaC_MaterialOptionListIMPLSC {
 public:
  const kmaC_MaterialOptionShortcut& Owner() const noexcept { return owner_; }
  cow_String Name() const override { return member_; }
  std::vector<cow_String> Path() const override;
  // Null when the owner is missing or has no such list; refuses an owner of another kind.
  const kmaC_MaterialOptionList* ConstGet(const ddr_Model& model) const override;
  kmaC_MaterialOptionList& Get(ddr_Model& model) const override;
  void DBWrite(const cls_WriteVisitor& w) const override;

 protected:
  kmaC_OptionListInOptionShortcut(kmaC_MaterialOptionShortcut owner, const cow_String& member, kmaC_OptionClass ownerClass,
                                  const char* refusal)
      : owner_(std::move(owner)), member_(member), ownerClass_(ownerClass), refusal_(refusal) {}
  // Reads the owner of a stored shortcut of class `self` (which also stores the member name).
  static kmaC_MaterialOptionShortcut ReadOwner(const cls_ReadVisitor& r, const char* self, unsigned selfTypeId);

 private:
  const kmaC_MaterialOption* CheckedOwner(const ddr_Model& model) const;
  kmaC_MaterialOptionShortcut owner_;
  cow_String member_;
  kmaC_OptionClass ownerClass_;
  const char* refusal_;
};

// One fixed list: Names gives kClassName, TypeId(), kMember, kOwner and kRefusal.
template <class Names>
class kmaC_FixedOptionListShortcut : public kmaC_OptionListInOptionShortcut {
 public:
  static constexpr const char* kClassName = Names::kClassName;
  static constexpr unsigned TypeId() { return Names::TypeId(); }
  explicit kmaC_FixedOptionListShortcut(kmaC_MaterialOptionShortcut owner)
      : kmaC_OptionListInOptionShortcut(std::move(owner), Names::kMember, Names::kOwner, Names::kRefusal) {}
  static kmaC_FixedOptionListShortcut Ctor(const cls_ReadVisitor& r) {
    kmaC_FixedOptionListShortcut s(ReadOwner(r, kClassName, TypeId()));
    s.SetUid(r.GetUid());
    return s;
  }
  kmaC_MaterialOptionListIMPLSC* Copy() const override { return mem_New<kmaC_FixedOptionListShortcut>(*this); }
  const char* ClassName() const override { return kClassName; }
  unsigned ClassTypeId() const override { return TypeId(); }
};

struct kmaC_UniaxialTestsListNames {
  static constexpr const char* kClassName = "kmaC_UniaxialTestsListInMaterialOptionShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(kmaC_kArchKey, 108); }
  static constexpr const char* kMember = "uniaxialTests";
  static constexpr kmaC_OptionClass kOwner = kmaC_OptionClass::MullinsEffect;
  static constexpr const char* kRefusal = "uniaxial tests exists only for Mullins Effect object.";
};
struct kmaC_BiaxialTestsListNames {
  static constexpr const char* kClassName = "kmaC_BiaxialTestsListInMaterialOptionShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(kmaC_kArchKey, 109); }
  static constexpr const char* kMember = "biaxialTests";
  static constexpr kmaC_OptionClass kOwner = kmaC_OptionClass::MullinsEffect;
  static constexpr const char* kRefusal = "biaxial tests exists only for Mullins Effect object.";
};
struct kmaC_PlanarTestsListNames {
  static constexpr const char* kClassName = "kmaC_PlanarTestsListInMaterialOptionShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(kmaC_kArchKey, 110); }
  static constexpr const char* kMember = "planarTests";
  static constexpr kmaC_OptionClass kOwner = kmaC_OptionClass::MullinsEffect;
  static constexpr const char* kRefusal = "planar tests exists only for Mullins Effect object.";
};
struct kmaC_DamageEvolutionListNames {
  static constexpr const char* kClassName = "kmaC_DamageEvolutionListInMaterialOptionShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(kmaC_kArchKey, 111); }
  static constexpr const char* kMember = "DamageEvolutionList";
  static constexpr kmaC_OptionClass kOwner = kmaC_OptionClass::DamageInitiation;
  static constexpr const char* kRefusal = "damage evolution list exists only for damage initiation object.";
};
struct kmaC_ElectrodeParticleListNames {
  static constexpr const char* kClassName = "kmaC_ElectrodeParticleListInMaterialOptionShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(kmaC_kArchKey, 112); }
  static constexpr const char* kMember = "ElectrodeParticleList";
  static constexpr kmaC_OptionClass kOwner = kmaC_OptionClass::Electrode;
  static constexpr const char* kRefusal = "electrodeparticle list exists only for electrode object.";
};
struct kmaC_ElectrodeParticleLayerListNames {
  static constexpr const char* kClassName = "kmaC_ElectrodeParticleLayerListInMaterialOptionShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(kmaC_kArchKey, 113); }
  static constexpr const char* kMember = "ElectrodeParticleLayerList";
  static constexpr kmaC_OptionClass kOwner = kmaC_OptionClass::Electrode;
  static constexpr const char* kRefusal = "electrodeparticleLayer list exists only for electrode object.";
};

class kmaC_UniaxialTestsListInMaterialOptionShortcut : public kmaC_FixedOptionListShortcut<kmaC_UniaxialTestsListNames> {
  using kmaC_FixedOptionListShortcut::kmaC_FixedOptionListShortcut;
};
class kmaC_BiaxialTestsListInMaterialOptionShortcut : public kmaC_FixedOptionListShortcut<kmaC_BiaxialTestsListNames> {
  using kmaC_FixedOptionListShortcut::kmaC_FixedOptionListShortcut;
};
class kmaC_PlanarTestsListInMaterialOptionShortcut : public kmaC_FixedOptionListShortcut<kmaC_PlanarTestsListNames> {
  using kmaC_FixedOptionListShortcut::kmaC_FixedOptionListShortcut;
};
class kmaC_DamageEvolutionListInMaterialOptionShortcut
    : public kmaC_FixedOptionListShortcut<kmaC_DamageEvolutionListNames> {
  using kmaC_FixedOptionListShortcut::kmaC_FixedOptionListShortcut;
};
class kmaC_ElectrodeParticleListInMaterialOptionShortcut
    : public kmaC_FixedOptionListShortcut<kmaC_ElectrodeParticleListNames> {
  using kmaC_FixedOptionListShortcut::kmaC_FixedOptionListShortcut;
};
class kmaC_ElectrodeParticleLayerListInMaterialOptionShortcut
    : public kmaC_FixedOptionListShortcut<kmaC_ElectrodeParticleLayerListNames> {
  using kmaC_FixedOptionListShortcut::kmaC_FixedOptionListShortcut;
};

// Any of the three test-data lists of a Mullins effect option, by member name.
class kmaC_MaterialOptionListInMullinsEffectShortcut : public kmaC_OptionListInOptionShortcut {
 public:
  static constexpr const char* kClassName = "kmaC_MaterialOptionListInMullinsEffectShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(kmaC_kArchKey, 107); }
  // Refuses a name other than "uniaxialTests", "biaxialTests" and "planarTests".
  kmaC_MaterialOptionListInMullinsEffectShortcut(kmaC_MaterialOptionShortcut owner, const cow_String& member);
  static kmaC_MaterialOptionListInMullinsEffectShortcut Ctor(const cls_ReadVisitor& r);
  kmaC_MaterialOptionListIMPLSC* Copy() const override;
  const char* ClassName() const override { return kClassName; }
  unsigned ClassTypeId() const override { return TypeId(); }
};
