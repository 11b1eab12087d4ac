#pragma once
// A porous electrode of a battery cell: its polarity, its data table, the solid-phase electrical
// conduction as a sub-option, and two lists: the particle kinds it is made of and its layers
// through the thickness. The lists are reached by the list shortcuts under the names
// "ElectrodeParticleList" and "ElectrodeParticleLayerList".
#include "framework/fw_PersistentClass.h"
#include "kma/kmaC_MaterialOption.h"
#include "kma/kmaC_MaterialTable.h"
#include "kma/kmaC_ElectrodeParticle.h"
#include "kma/kmaC_ElectrodeParticleLayer.h"
#include "kma/kmaC_OptionListMember.h"
#include "kma/kmaC_OptionSlot.h"
#include "platform/base/omu_PrimEnum.h"

class kmaC_Electrode : public fw_PersistentClass<kmaC_Electrode, kmaC_MaterialOption> {
 public:
  enum class TypeEnm : std::int32_t { NEGATIVE = 0, POSITIVE = 1 };
  static constexpr omu_EnumLiteral kTypeLiterals[] = {{"NEGATIVE", 0}, {"POSITIVE", 1}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(TypeEnm) { return kTypeLiterals; }

  using BaseClass = kmaC_MaterialOption;
  using RootClass = kmaC_MaterialOption;
  static constexpr const char* kClassName = "kmaC_Electrode";
  static constexpr const char* kScriptName = "Electrode";
  static constexpr int kVersion = 203;
  static constexpr unsigned TypeId() { return kmaC_OptionTypeId(kmaC_OptionClass::Electrode); }

  static constexpr auto Fields() {
    using C = kmaC_Electrode;
    return std::tuple{
        fw_Field{"type", 0, "type", &C::type},
        fw_Field{"temperatureDependency", 1, "temperatureDependency", &C::temperatureDependency},
        fw_Field{"dependencies", 2, "dependencies", &C::dependencies},
        fw_Field{"table", 3, "table", &C::table},
        fw_Field{"electricalConductivity", 4, "electricalConductivity", &C::electricalConductivity},
        fw_Field{"electrodeParticleList", 5, "electrodeParticleList", &C::electrodeParticleList},
        fw_Field{"electrodeParticleLayerList", 6, "electrodeParticleLayerList", &C::electrodeParticleLayerList},
    };
  }

  kmaC_Electrode() = default;
  explicit kmaC_Electrode(const cls_ReadVisitor& r);
  void AssertValid() const override;
  unsigned DynTypeId() const override { return TypeId(); }
  const char* UnknownSubOptionMessage() const override { return "Unknown material option name for electrode"; }
  // The list of that member name: "ElectrodeParticleList" or "ElectrodeParticleLayerList" (the
  // names the list shortcuts use) or the field's own scripting name.
  const kmaC_MaterialOptionList* OptionList(std::string_view member) const override;
  kmaC_MaterialOptionList* ModifyOptionList(std::string_view member) override;

  static cow_String constructorCmd() { return kScriptName; }
  static cow_String typeCmd() { return "type"; }
  static cow_String temperatureDependencyCmd() { return "temperatureDependency"; }
  static cow_String dependenciesCmd() { return "dependencies"; }
  static cow_String tableCmd() { return "table"; }
  static cow_String electricalConductivityCmd() { return "electricalConductivity"; }
  static cow_String electrodeParticleListCmd() { return "electrodeParticleList"; }
  static cow_String electrodeParticleLayerListCmd() { return "electrodeParticleLayerList"; }
  static cow_String setValuesCmd() { return "setValues"; }

  TypeEnm GetType() const { return type; }
  void SetType(TypeEnm v) { type = omu_PrimEnum<TypeEnm, 1>(v).GetValue(); }
  bool GetTemperatureDependency() const { return temperatureDependency; }
  void SetTemperatureDependency(bool v) { temperatureDependency = v; }
  std::int32_t GetDependencies() const { return dependencies; }
  void SetDependencies(std::int32_t v) { dependencies = v; }
  const kmaC_MaterialTable& GetTable() const { return table; }
  void SetTable(const kmaC_MaterialTable& v) { table = v; }
  const kmaC_MaterialOption* GetElectricalConductivity() const { return electricalConductivity.ConstGet(); }
  void SetElectricalConductivity(const kmaC_MaterialOption& v) { electricalConductivity.Set(v, "electricalConductivity"); }
  void ClearElectricalConductivity() { electricalConductivity.Clear(); }
  // The lists take particles (layers) only; anything else refuses the whole list.
  const kmaC_MaterialOptionList& GetElectrodeParticleList() const { return electrodeParticleList.List(); }
  void SetElectrodeParticleList(const kmaC_MaterialOptionList& v) { electrodeParticleList.Set(v, "electrodeParticleList"); }
  const kmaC_MaterialOptionList& GetElectrodeParticleLayerList() const { return electrodeParticleLayerList.List(); }
  void SetElectrodeParticleLayerList(const kmaC_MaterialOptionList& v) {
    electrodeParticleLayerList.Set(v, "electrodeParticleLayerList");
  }

 private:
  TypeEnm type = TypeEnm::NEGATIVE;
  bool temperatureDependency = false;
  std::int32_t dependencies = 0;
  kmaC_MaterialTable table;
  kmaC_OptionSlot<kmaC_OptionClass::ElectricalConductivity> electricalConductivity;
  kmaC_OptionListMember<kmaC_OptionClass::ElectrodeParticle> electrodeParticleList;
  kmaC_OptionListMember<kmaC_OptionClass::ElectrodeParticleLayer> electrodeParticleLayerList;
};

extern template class fw_PersistentClass<kmaC_Electrode, kmaC_MaterialOption>;
