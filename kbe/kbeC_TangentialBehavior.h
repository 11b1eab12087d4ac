#pragma once
// The friction law of a friction behavior: penalty or exponential decay, with the limits of
// elastic slip.
#include <cstdint>

#include "framework/fw_PersistentClass.h"
#include "framework/fw_Field.h"
#include "framework/fw_OrLiteral.h"
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

class kbeC_TangentialBehavior : public fw_PersistentClass<kbeC_TangentialBehavior, mem_Allocated> {
 public:
  enum class FormulationEnm : std::int32_t { PENALTY = 0, EXPONENTIAL_DECAY = 1 };
  enum class ExponentialDecayDefinitionEnm : std::int32_t { COEFFICIENTS = 0, TEST_DATA = 1 };
  enum class MaximumElasticSlipEnm : std::int32_t { FRACTION = 0, ABSOLUTE_DISTANCE = 1 };
  static constexpr omu_EnumLiteral kFormulationLiterals[] = {{"PENALTY", 0}, {"EXPONENTIAL_DECAY", 1}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(FormulationEnm) { return kFormulationLiterals; }
  static constexpr omu_EnumLiteral kExponentialDecayDefinitionLiterals[] = {{"COEFFICIENTS", 0}, {"TEST_DATA", 1}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(ExponentialDecayDefinitionEnm) { return kExponentialDecayDefinitionLiterals; }
  static constexpr omu_EnumLiteral kMaximumElasticSlipLiterals[] = {{"FRACTION", 0}, {"ABSOLUTE_DISTANCE", 1}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(MaximumElasticSlipEnm) { return kMaximumElasticSlipLiterals; }

  static constexpr const char* kClassName = "kbeC_TangentialBehavior";
  static constexpr const char* kScriptName = "TangentialBehavior";
  static constexpr int kVersion = 1022;
  static constexpr unsigned TypeId() { return fw_TypeId(680, 13); }

  // Persistent fields in write order (the numbers record the order they were added in).
  static constexpr auto Fields() {
    using C = kbeC_TangentialBehavior;
    return std::tuple{
        fw_Field{"formulation", 0, "formulation", &C::formulation},
        fw_Field{"slipRateDependency", 1, "slipRateDependency", &C::slipRateDependency},
        fw_Field{"pressureDependency", 2, "pressureDependency", &C::pressureDependency},
        fw_Field{"temperatureDependency", 3, "temperatureDependency", &C::temperatureDependency},
        fw_Field{"dependencies", 4, "dependencies", &C::dependencies},
        fw_Field{"exponentialDecayDefinition", 5, "exponentialDecayDefinition", &C::exponentialDecayDefinition},
        fw_Field{"shearStressLimit", 6, "shearStressLimit", &C::shearStressLimit},
        fw_Field{"maximumElasticSlip", 7, "maximumElasticSlip", &C::maximumElasticSlip},
        fw_Field{"fraction", 8, "fraction", &C::fraction},
        fw_Field{"absoluteDistance", 9, "absoluteDistance", &C::absoluteDistance},
        fw_Field{"table", 10, "table", &C::table},
    };
  }

  kbeC_TangentialBehavior() = default;
  explicit kbeC_TangentialBehavior(const cls_ReadVisitor& r);
  virtual ~kbeC_TangentialBehavior() = default;
  virtual void AssertValid() const;

  const cls_Uid& GetUid() const { return uid; }
  FormulationEnm GetFormulation() const { return formulation; }
  void SetFormulation(FormulationEnm v) { formulation = v; }
  bool GetSlipRateDependency() const { return slipRateDependency; }
  void SetSlipRateDependency(bool v) { slipRateDependency = v; }
  bool GetPressureDependency() const { return pressureDependency; }
  void SetPressureDependency(bool v) { pressureDependency = v; }
  bool GetTemperatureDependency() const { return temperatureDependency; }
  void SetTemperatureDependency(bool v) { temperatureDependency = v; }
  std::int32_t GetDependencies() const { return dependencies; }
  void SetDependencies(std::int32_t v) { dependencies = v; }
  ExponentialDecayDefinitionEnm GetExponentialDecayDefinition() const { return exponentialDecayDefinition; }
  void SetExponentialDecayDefinition(ExponentialDecayDefinitionEnm v) { exponentialDecayDefinition = v; }
  double GetShearStressLimit() const { return shearStressLimit; }
  void SetShearStressLimit(double v) { shearStressLimit = v; }
  MaximumElasticSlipEnm GetMaximumElasticSlip() const { return maximumElasticSlip; }
  void SetMaximumElasticSlip(MaximumElasticSlipEnm v) { maximumElasticSlip = v; }
  double GetFraction() const { return fraction; }
  void SetFraction(double v) { fraction = v; }
  double GetAbsoluteDistance() const { return absoluteDistance; }
  void SetAbsoluteDistance(double v) { absoluteDistance = v; }
  const cow_2DArray<double>& GetTable() const { return table; }
  void SetTable(const cow_2DArray<double>& v) { table = v; }

 private:
  FormulationEnm formulation = FormulationEnm::PENALTY;
  bool slipRateDependency = false;
  bool pressureDependency = false;
  bool temperatureDependency = false;
  std::int32_t dependencies = 0;
  ExponentialDecayDefinitionEnm exponentialDecayDefinition = ExponentialDecayDefinitionEnm::COEFFICIENTS;
  fw_Unspecified shearStressLimit = kbeC_kUnspecified;
  MaximumElasticSlipEnm maximumElasticSlip = MaximumElasticSlipEnm::FRACTION;
  double fraction = 0.005;
  double absoluteDistance = 0.0;
  cow_2DArray<double> table;
  cls_Uid uid;
};

extern template class fw_PersistentClass<kbeC_TangentialBehavior, mem_Allocated>;
