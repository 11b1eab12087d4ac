#pragma once
// Volumetric test data of a hyperelastic or hyperfoam fit: pressure against volume ratio
// (`volumetricResponse` VOLUMETRIC_DATA), or only a Poisson's ratio for the compressibility
// (POISSON_RATIO, the table then unused). `smoothing` is the number of points on each side used
// to smooth the data (0: none). The table width is 2, plus one column for temperature when
// temperature-dependent and one per field-variable dependency.
#include "framework/fw_PersistentClass.h"
#include "kma/kmaC_MaterialOption.h"
#include "kma/kmaC_MaterialTable.h"
#include "platform/base/omu_PrimEnum.h"

class kmaC_VolumetricTestData : public fw_PersistentClass<kmaC_VolumetricTestData, kmaC_MaterialOption> {
 public:
  enum class VolumetricResponseEnm : std::int32_t { VOLUMETRIC_DATA = 0, POISSON_RATIO = 1 };
  static constexpr omu_EnumLiteral kVolumetricResponseLiterals[] = {
      {"VOLUMETRIC_DATA", 0}, {"POISSON_RATIO", 1}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(VolumetricResponseEnm) { return kVolumetricResponseLiterals; }

  using BaseClass = kmaC_MaterialOption;
  using RootClass = kmaC_MaterialOption;
  static constexpr const char* kClassName = "kmaC_VolumetricTestData";
  static constexpr const char* kScriptName = "VolumetricTestData";
  static constexpr int kVersion = 850;
  static constexpr unsigned TypeId() { return kmaC_OptionTypeId(kmaC_OptionClass::VolumetricTestData); }

  // Fields 0-3 date from 203, 4 from 324, 5 from 850.
  static constexpr auto Fields() {
    using C = kmaC_VolumetricTestData;
    return std::tuple{
        fw_Field{"smoothing", 0, "smoothing", &C::smoothing},
        fw_Field{"volumetricResponse", 4, "volumetricResponse", &C::volumetricResponse},
        fw_Field{"poissonRatio", 5, "poissonRatio", &C::poissonRatio},
        fw_Field{"temperatureDependency", 1, "temperatureDependency", &C::temperatureDependency},
        fw_Field{"dependencies", 2, "dependencies", &C::dependencies},
        fw_Field{"table", 3, "table", &C::table},
    };
  }

  kmaC_VolumetricTestData() = default;
  explicit kmaC_VolumetricTestData(const cls_ReadVisitor& r);
  // Dependencies (code 0), Poisson's ratio from -1 to 0.5 (codes 4, 5), then the table (code 23,
  // only for VOLUMETRIC_DATA).
  void AssertValid() const override;
  unsigned DynTypeId() const override { return TypeId(); }

  static cow_String constructorCmd() { return kScriptName; }
  static cow_String smoothingCmd() { return "smoothing"; }
  static cow_String volumetricResponseCmd() { return "volumetricResponse"; }
  static cow_String poissonRatioCmd() { return "poissonRatio"; }
  static cow_String temperatureDependencyCmd() { return "temperatureDependency"; }
  static cow_String dependenciesCmd() { return "dependencies"; }
  static cow_String tableCmd() { return "table"; }
  static cow_String setValuesCmd() { return "setValues"; }

  std::int32_t GetSmoothing() const { return smoothing; }
  void SetSmoothing(std::int32_t v) { smoothing = v; }
  VolumetricResponseEnm GetVolumetricResponse() const { return volumetricResponse; }
  void SetVolumetricResponse(VolumetricResponseEnm v) {
    volumetricResponse = omu_PrimEnum<VolumetricResponseEnm, 1>(v).GetValue();
  }
  double GetPoissonRatio() const { return poissonRatio; }
  void SetPoissonRatio(double v) { poissonRatio = v; }
  bool GetTemperatureDependency() const { return temperatureDependency; }
  void SetTemperatureDependency(bool v) { temperatureDependency = v; }
  std::int32_t GetDependencies() const { return dependencies; }
  void SetDependencies(std::int32_t v) { dependencies = v; }
  const kmaC_MaterialTable& GetTable() const { return table; }
  void SetTable(const kmaC_MaterialTable& v) { table = v; }

 private:
  std::int32_t smoothing = 0;
  VolumetricResponseEnm volumetricResponse = VolumetricResponseEnm::VOLUMETRIC_DATA;
  double poissonRatio = 0.0;
  bool temperatureDependency = false;
  std::int32_t dependencies = 0;
  kmaC_MaterialTable table;
};

extern template class fw_PersistentClass<kmaC_VolumetricTestData, kmaC_MaterialOption>;
