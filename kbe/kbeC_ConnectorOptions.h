#pragma once
// The table options of a connector behavior or of a derived-component term: regularization,
// rate factor, interpolation and extrapolation of the table data.
#include <cstdint>

#include "framework/fw_PersistentClass.h"
#include "framework/fw_Field.h"
#include "platform/base/bas_Alloc.h"
#include "platform/persist/cls_Uid.h"
#include "kbe/kbeC_Values.h"
#include "platform/base/cow_2DArray.h"
#include "platform/base/cow_COW.h"
#include "platform/base/cow_List.h"
#include "platform/base/cow_String.h"
#include "platform/base/omu_PrimEnum.h"

class cls_ReadVisitor;
class cls_WriteVisitor;
class cls_ClassRegistrar;

class kbeC_ConnectorOptions : public fw_PersistentClass<kbeC_ConnectorOptions, mem_Allocated> {
 public:
  enum class InterpolationEnm : std::int32_t { LINEAR = 0, LOGARITHMIC = 1 };
  enum class ExtrapolationEnm : std::int32_t { CONSTANT = 0, LINEAR = 1 };
  static constexpr omu_EnumLiteral kInterpolationLiterals[] = {{"LINEAR", 0}, {"LOGARITHMIC", 1}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(InterpolationEnm) { return kInterpolationLiterals; }
  static constexpr omu_EnumLiteral kExtrapolationLiterals[] = {{"CONSTANT", 0}, {"LINEAR", 1}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(ExtrapolationEnm) { return kExtrapolationLiterals; }

  static constexpr const char* kClassName = "kbeC_ConnectorOptions";
  static constexpr const char* kScriptName = "ConnectorOptions";
  static constexpr int kVersion = 1125;
  static constexpr unsigned TypeId() { return fw_TypeId(680, 2); }

  // Persistent fields in write order (the numbers record the order they were added in).
  static constexpr auto Fields() {
    using C = kbeC_ConnectorOptions;
    return std::tuple{
        fw_Field{"useBehRegSettings", 7, "useBehRegSettings", &C::useBehRegSettings},
        fw_Field{"regularize", 0, "regularize", &C::regularize},
        fw_Field{"defaultTolerance", 1, "defaultTolerance", &C::defaultTolerance},
        fw_Field{"regularization", 2, "regularization", &C::regularization},
        fw_Field{"defaultRateFactor", 3, "defaultRateFactor", &C::defaultRateFactor},
        fw_Field{"rateFactor", 4, "rateFactor", &C::rateFactor},
        fw_Field{"interpolation", 5, "interpolation", &C::interpolation},
        fw_Field{"useBehExtSettings", 8, "useBehExtSettings", &C::useBehExtSettings},
        fw_Field{"extrapolation", 6, "extrapolation", &C::extrapolation},
    };
  }

  kbeC_ConnectorOptions() = default;
  explicit kbeC_ConnectorOptions(const cls_ReadVisitor& r);
  virtual ~kbeC_ConnectorOptions() = default;
  virtual void AssertValid() const;

  const cls_Uid& GetUid() const { return uid; }
  // The default rate factor.
  static constexpr double rateFactorDef() { return 0.9; }
  // The default regularization tolerance.
  static constexpr double regularizationDef() { return 0.03; }
  // Scripting keywords.
  static const char* constructorCmd() { return kScriptName; }
  static const char* useBehRegSettingsCmd() { return "useBehRegSettings"; }
  static const char* regularizeCmd() { return "regularize"; }
  static const char* defaultToleranceCmd() { return "defaultTolerance"; }
  static const char* regularizationCmd() { return "regularization"; }
  static const char* defaultRateFactorCmd() { return "defaultRateFactor"; }
  static const char* rateFactorCmd() { return "rateFactor"; }
  static const char* interpolationCmd() { return "interpolation"; }
  static const char* useBehExtSettingsCmd() { return "useBehExtSettings"; }
  static const char* extrapolationCmd() { return "extrapolation"; }
  // True when the rate options stand at their defaults (default rate factor of exactly 0.9,
  // linear interpolation).
  bool RateOptionsAtDefaults() const;
  bool GetUseBehRegSettings() const { return useBehRegSettings; }
  void SetUseBehRegSettings(bool v) { useBehRegSettings = v; }
  bool GetRegularize() const { return regularize; }
  void SetRegularize(bool v) { regularize = v; }
  bool GetDefaultTolerance() const { return defaultTolerance; }
  void SetDefaultTolerance(bool v) { defaultTolerance = v; }
  double GetRegularization() const { return regularization; }
  void SetRegularization(double v) { regularization = v; }
  bool GetDefaultRateFactor() const { return defaultRateFactor; }
  void SetDefaultRateFactor(bool v) { defaultRateFactor = v; }
  double GetRateFactor() const { return rateFactor; }
  void SetRateFactor(double v) { rateFactor = v; }
  InterpolationEnm GetInterpolation() const { return interpolation; }
  void SetInterpolation(InterpolationEnm v) { interpolation = v; }
  bool GetUseBehExtSettings() const { return useBehExtSettings; }
  void SetUseBehExtSettings(bool v) { useBehExtSettings = v; }
  ExtrapolationEnm GetExtrapolation() const { return extrapolation; }
  void SetExtrapolation(ExtrapolationEnm v) { extrapolation = v; }

 private:
  bool useBehRegSettings = true;
  bool regularize = true;
  bool defaultTolerance = true;
  double regularization = 0.03;
  bool defaultRateFactor = true;
  double rateFactor = rateFactorDef();
  InterpolationEnm interpolation = InterpolationEnm::LINEAR;
  bool useBehExtSettings = true;
  ExtrapolationEnm extrapolation = ExtrapolationEnm::CONSTANT;
  cls_Uid uid;
};

extern template class fw_PersistentClass<kbeC_ConnectorOptions, mem_Allocated>;
