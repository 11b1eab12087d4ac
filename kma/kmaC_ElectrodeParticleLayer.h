#pragma once
// One layer of a porous electrode through its thickness: the layer's thickness (blank until
// given), the number of elements across it and its data table (the particle volume fractions of
// the layer).
#include "framework/fw_PersistentClass.h"
#include "framework/fw_OrLiteral.h"
#include <limits>

#include "kma/kmaC_MaterialOption.h"
#include "kma/kmaC_MaterialTable.h"
#include "platform/base/omu_PrimEnum.h"

class kmaC_ElectrodeParticleLayer : public fw_PersistentClass<kmaC_ElectrodeParticleLayer, kmaC_MaterialOption> {
 public:
  using BaseClass = kmaC_MaterialOption;
  using RootClass = kmaC_MaterialOption;
  static constexpr const char* kClassName = "kmaC_ElectrodeParticleLayer";
  static constexpr const char* kScriptName = "ElectrodeParticleLayer";
  static constexpr int kVersion = 203;
  static constexpr unsigned TypeId() { return kmaC_OptionTypeId(kmaC_OptionClass::ElectrodeParticleLayer); }

  static constexpr auto Fields() {
    using C = kmaC_ElectrodeParticleLayer;
    return std::tuple{
        fw_Field{"thickness", 0, "thickness", &C::thickness},
        fw_Field{"numElements", 1, "numElements", &C::numElements},
        fw_Field{"temperatureDependency", 2, "temperatureDependency", &C::temperatureDependency},
        fw_Field{"dependencies", 3, "dependencies", &C::dependencies},
        fw_Field{"table", 4, "table", &C::table},
    };
  }

  kmaC_ElectrodeParticleLayer() = default;
  explicit kmaC_ElectrodeParticleLayer(const cls_ReadVisitor& r);
  void AssertValid() const override;
  unsigned DynTypeId() const override { return TypeId(); }

  static cow_String constructorCmd() { return kScriptName; }
  static cow_String thicknessCmd() { return "thickness"; }
  static cow_String numElementsCmd() { return "numElements"; }
  static cow_String temperatureDependencyCmd() { return "temperatureDependency"; }
  static cow_String dependenciesCmd() { return "dependencies"; }
  static cow_String tableCmd() { return "table"; }
  static cow_String setValuesCmd() { return "setValues"; }

  double GetThickness() const { return thickness; }
  void SetThickness(double v) { thickness = v; }
  std::int32_t GetNumElements() const { return numElements; }
  void SetNumElements(std::int32_t v) { numElements = v; }
  bool GetTemperatureDependency() const { return temperatureDependency; }
  void SetTemperatureDependency(bool v) { temperatureDependency = v; }
  std::int32_t GetDependencies() const { return dependencies; }
  void SetDependencies(std::int32_t v) { dependencies = v; }
  const kmaC_MaterialTable& GetTable() const { return table; }
  void SetTable(const kmaC_MaterialTable& v) { table = v; }

 private:
  fw_Unspecified thickness = std::numeric_limits<double>::max();
  std::int32_t numElements = 1;
  bool temperatureDependency = false;
  std::int32_t dependencies = 0;
  kmaC_MaterialTable table;
};

extern template class fw_PersistentClass<kmaC_ElectrodeParticleLayer, kmaC_MaterialOption>;
