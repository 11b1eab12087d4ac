#pragma once
// Mohr-Coulomb plasticity: friction and dilation angles and the flow potential eccentricities.
#include "framework/fw_PersistentClass.h"
#include "kma/kmaC_MaterialOption.h"
#include "kma/kmaC_MaterialTable.h"

class kmaC_MohrCoulomb : public fw_PersistentClass<kmaC_MohrCoulomb, kmaC_MaterialOption> {
 public:
  using BaseClass = kmaC_MaterialOption;
  using RootClass = kmaC_MaterialOption;
  static constexpr const char* kClassName = "kmaC_MohrCoulomb";
  static constexpr const char* kScriptName = "MohrCoulomb";
  static constexpr int kVersion = 2002;
  static constexpr unsigned TypeId() { return kmaC_OptionTypeId(kmaC_OptionClass::MohrCoulomb); }

  static constexpr auto Fields() {
    using C = kmaC_MohrCoulomb;
    return std::tuple{
        fw_Field{"deviatoricEccentricity", 0, "deviatoricEccentricity", &C::deviatoricEccentricity},
        fw_Field{"meridionalEccentricity", 1, "meridionalEccentricity", &C::meridionalEccentricity},
        fw_Field{"useTensionCutoff", 2, "useTensionCutoff", &C::useTensionCutoff},
        fw_Field{"temperatureDependency", 3, "temperatureDependency", &C::temperatureDependency},
        fw_Field{"dependencies", 4, "dependencies", &C::dependencies},
        fw_Field{"table", 5, "table", &C::table},
    };
  }

  kmaC_MohrCoulomb() = default;
  explicit kmaC_MohrCoulomb(const cls_ReadVisitor& r);
  void AssertValid() const override;
  unsigned DynTypeId() const override { return TypeId(); }
  const char* UnknownSubOptionMessage() const override { return "Unknown material option name for Mohr Coulomb plasticity"; }

  static cow_String constructorCmd() { return kScriptName; }
  static cow_String deviatoricEccentricityCmd() { return "deviatoricEccentricity"; }
  static cow_String meridionalEccentricityCmd() { return "meridionalEccentricity"; }
  static cow_String useTensionCutoffCmd() { return "useTensionCutoff"; }
  static cow_String temperatureDependencyCmd() { return "temperatureDependency"; }
  static cow_String dependenciesCmd() { return "dependencies"; }
  static cow_String tableCmd() { return "table"; }
  static cow_String setValuesCmd() { return "setValues"; }

  double GetDeviatoricEccentricity() const { return deviatoricEccentricity; }
  void SetDeviatoricEccentricity(double v) { deviatoricEccentricity = v; }
  double GetMeridionalEccentricity() const { return meridionalEccentricity; }
  void SetMeridionalEccentricity(double v) { meridionalEccentricity = v; }
  bool GetUseTensionCutoff() const { return useTensionCutoff; }
  void SetUseTensionCutoff(bool v) { useTensionCutoff = v; }
  bool GetTemperatureDependency() const { return temperatureDependency; }
  void SetTemperatureDependency(bool v) { temperatureDependency = v; }
  std::int32_t GetDependencies() const { return dependencies; }
  void SetDependencies(std::int32_t v) { dependencies = v; }
  const kmaC_MaterialTable& GetTable() const { return table; }
  void SetTable(const kmaC_MaterialTable& v) { table = v; }

 private:
  double deviatoricEccentricity = 1.0;
  double meridionalEccentricity = 0.1;
  bool useTensionCutoff = false;
  bool temperatureDependency = false;
  std::int32_t dependencies = 0;
  kmaC_MaterialTable table;
};

extern template class fw_PersistentClass<kmaC_MohrCoulomb, kmaC_MaterialOption>;
