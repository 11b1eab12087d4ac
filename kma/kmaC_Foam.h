#pragma once
// Crushable foam plasticity: the hardening of the yield surface and its shape data.
#include "framework/fw_PersistentClass.h"
#include "kma/kmaC_MaterialOption.h"
#include "kma/kmaC_MaterialTable.h"
#include "platform/base/omu_PrimEnum.h"

class kmaC_Foam : public fw_PersistentClass<kmaC_Foam, kmaC_MaterialOption> {
 public:
  enum class HardeningEnm : std::int32_t { VOLUMETRIC = 0, ISOTROPIC = 1 };
  static constexpr omu_EnumLiteral kHardeningLiterals[] = {{"VOLUMETRIC", 0}, {"ISOTROPIC", 1}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(HardeningEnm) { return kHardeningLiterals; }

  using BaseClass = kmaC_MaterialOption;
  using RootClass = kmaC_MaterialOption;
  static constexpr const char* kClassName = "kmaC_Foam";
  static constexpr const char* kScriptName = "Foam";
  static constexpr int kVersion = 203;
  static constexpr unsigned TypeId() { return kmaC_OptionTypeId(kmaC_OptionClass::Foam); }

  static constexpr auto Fields() {
    using C = kmaC_Foam;
    return std::tuple{
        fw_Field{"hardening", 0, "hardening", &C::hardening},
        fw_Field{"temperatureDependency", 1, "temperatureDependency", &C::temperatureDependency},
        fw_Field{"dependencies", 2, "dependencies", &C::dependencies},
        fw_Field{"table", 3, "table", &C::table},
    };
  }

  kmaC_Foam() = default;
  explicit kmaC_Foam(const cls_ReadVisitor& r);
  void AssertValid() const override;
  unsigned DynTypeId() const override { return TypeId(); }
  const char* UnknownSubOptionMessage() const override { return "Unknown material option name for foam"; }

  static cow_String constructorCmd() { return kScriptName; }
  static cow_String hardeningCmd() { return "hardening"; }
  static cow_String temperatureDependencyCmd() { return "temperatureDependency"; }
  static cow_String dependenciesCmd() { return "dependencies"; }
  static cow_String tableCmd() { return "table"; }
  static cow_String setValuesCmd() { return "setValues"; }

  HardeningEnm GetHardening() const { return hardening; }
  void SetHardening(HardeningEnm v) { hardening = omu_PrimEnum<HardeningEnm, 1>(v).GetValue(); }
  bool GetTemperatureDependency() const { return temperatureDependency; }
  void SetTemperatureDependency(bool v) { temperatureDependency = v; }
  std::int32_t GetDependencies() const { return dependencies; }
  void SetDependencies(std::int32_t v) { dependencies = v; }
  const kmaC_MaterialTable& GetTable() const { return table; }
  void SetTable(const kmaC_MaterialTable& v) { table = v; }

 private:
  HardeningEnm hardening = HardeningEnm::VOLUMETRIC;
  bool temperatureDependency = false;
  std::int32_t dependencies = 0;
  kmaC_MaterialTable table;
};

extern template class fw_PersistentClass<kmaC_Foam, kmaC_MaterialOption>;
