#pragma once
// Plasticity of connector components: isotropic and kinematic hardening, uncoupled or coupled
// through a force potential.
#include <cstdint>

#include "framework/fw_PersistentClass.h"
#include "framework/fw_Field.h"
#include "kbe/kbeC_ConnectorBehaviorOption.h"
#include "kbe/kbeC_Values.h"
#include "platform/base/cow_2DArray.h"
#include "platform/base/cow_COW.h"
#include "platform/base/cow_List.h"
#include "platform/base/cow_String.h"
#include "platform/base/omu_PrimEnum.h"
#include "kbe/kbeC_ConnectorOptions.h"
#include "kbe/kbeC_ConnectorPotential.h"

class kbeC_ConnectorPlasticity : public fw_PersistentClass<kbeC_ConnectorPlasticity, kbeC_ConnectorBehaviorOption> {
 public:
  using BaseClass = kbeC_ConnectorBehaviorOption;
  using RootClass = kbeC_ConnectorBehaviorOption;
  enum class CouplingEnm : std::int32_t { UNCOUPLED = 0, COUPLED = 1 };
  enum class IsotropicTypeEnm : std::int32_t { TABULAR = 0, EXPONENTIAL_LAW = 1 };
  enum class KinematicTypeEnm : std::int32_t { HALF_CYCLE = 0, STABILIZED = 1, PARAMETERS = 2 };
  enum class ForcePotentialOperatorEnm : std::int32_t { SUM = 0, MAXIMUM = 1 };
  static constexpr omu_EnumLiteral kCouplingLiterals[] = {{"UNCOUPLED", 0}, {"COUPLED", 1}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(CouplingEnm) { return kCouplingLiterals; }
  static constexpr omu_EnumLiteral kIsotropicTypeLiterals[] = {{"TABULAR", 0}, {"EXPONENTIAL_LAW", 1}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(IsotropicTypeEnm) { return kIsotropicTypeLiterals; }
  static constexpr omu_EnumLiteral kKinematicTypeLiterals[] = {{"HALF_CYCLE", 0}, {"STABILIZED", 1}, {"PARAMETERS", 2}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(KinematicTypeEnm) { return kKinematicTypeLiterals; }
  static constexpr omu_EnumLiteral kForcePotentialOperatorLiterals[] = {{"SUM", 0}, {"MAXIMUM", 1}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(ForcePotentialOperatorEnm) { return kForcePotentialOperatorLiterals; }

  static constexpr const char* kClassName = "kbeC_ConnectorPlasticity";
  static constexpr const char* kScriptName = "ConnectorPlasticity";
  static constexpr int kVersion = 836;
  static constexpr unsigned TypeId() { return fw_TypeId(680, 8); }

  // Persistent fields in write order (the numbers record the order they were added in).
  static constexpr auto Fields() {
    using C = kbeC_ConnectorPlasticity;
    return std::tuple{
        fw_Field{"components", 0, "components", &C::components},
        fw_Field{"coupling", 1, "coupling", &C::coupling},
        fw_Field{"isotropic", 2, "isotropic", &C::isotropic},
        fw_Field{"isotropicType", 3, "isotropicType", &C::isotropicType},
        fw_Field{"isotropicTemperature", 4, "isotropicTemperature", &C::isotropicTemperature},
        fw_Field{"isotropicDependencies", 5, "isotropicDependencies", &C::isotropicDependencies},
        fw_Field{"isotropicTable", 6, "isotropicTable", &C::isotropicTable},
        fw_Field{"isotropicOptions", 16, "isotropicOptions", &C::isotropicOptions},
        fw_Field{"kinematic", 7, "kinematic", &C::kinematic},
        fw_Field{"kinematicType", 8, "kinematicType", &C::kinematicType},
        fw_Field{"kinematicTemperature", 9, "kinematicTemperature", &C::kinematicTemperature},
        fw_Field{"kinematicDependencies", 10, "kinematicDependencies", &C::kinematicDependencies},
        fw_Field{"kinematicTable", 11, "kinematicTable", &C::kinematicTable},
        fw_Field{"kinematicOptions", 17, "kinematicOptions", &C::kinematicOptions},
        fw_Field{"forcePotentialOperator", 12, "forcePotentialOperator", &C::forcePotentialOperator},
        fw_Field{"forcePotentialExponent", 13, "forcePotentialExponent", &C::forcePotentialExponent},
        fw_Field{"potentials", 14, "connectorPotentials", &C::connectorPotentials},
        fw_Field{"lastId", 15, "lastId", &C::lastId},
    };
  }

  kbeC_ConnectorPlasticity() = default;
  explicit kbeC_ConnectorPlasticity(const cls_ReadVisitor& r);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }
  static void InitializeMetadata(cls_ClassRegistrar& registrar);

  // Appends a potential and counts it in the last-used potential id.
  void AppendConnectorPotential(const kbeC_ConnectorPotential& p);
  const cow_List<std::int32_t>& GetComponents() const { return components; }
  void SetComponents(const cow_List<std::int32_t>& v) { components = v; }
  CouplingEnm GetCoupling() const { return coupling; }
  void SetCoupling(CouplingEnm v) { coupling = v; }
  bool GetIsotropic() const { return isotropic; }
  void SetIsotropic(bool v) { isotropic = v; }
  IsotropicTypeEnm GetIsotropicType() const { return isotropicType; }
  void SetIsotropicType(IsotropicTypeEnm v) { isotropicType = v; }
  bool GetIsotropicTemperature() const { return isotropicTemperature; }
  void SetIsotropicTemperature(bool v) { isotropicTemperature = v; }
  std::int32_t GetIsotropicDependencies() const { return isotropicDependencies; }
  void SetIsotropicDependencies(std::int32_t v) { isotropicDependencies = v; }
  const cow_2DArray<double>& GetIsotropicTable() const { return isotropicTable; }
  void SetIsotropicTable(const cow_2DArray<double>& v) { isotropicTable = v; }
  bool HasIsotropicOptions() const { return !isotropicOptions.IsNull(); }
  const kbeC_ConnectorOptions& GetIsotropicOptions() const;
  kbeC_ConnectorOptions& ModifyIsotropicOptions();
  void SetIsotropicOptions(const kbeC_ConnectorOptions& v) { isotropicOptions = cow_COW<kbeC_ConnectorOptions>(v); }
  void ClearIsotropicOptions() { isotropicOptions = cow_COW<kbeC_ConnectorOptions>(); }
  bool GetKinematic() const { return kinematic; }
  void SetKinematic(bool v) { kinematic = v; }
  KinematicTypeEnm GetKinematicType() const { return kinematicType; }
  void SetKinematicType(KinematicTypeEnm v) { kinematicType = v; }
  bool GetKinematicTemperature() const { return kinematicTemperature; }
  void SetKinematicTemperature(bool v) { kinematicTemperature = v; }
  std::int32_t GetKinematicDependencies() const { return kinematicDependencies; }
  void SetKinematicDependencies(std::int32_t v) { kinematicDependencies = v; }
  const cow_2DArray<double>& GetKinematicTable() const { return kinematicTable; }
  void SetKinematicTable(const cow_2DArray<double>& v) { kinematicTable = v; }
  bool HasKinematicOptions() const { return !kinematicOptions.IsNull(); }
  const kbeC_ConnectorOptions& GetKinematicOptions() const;
  kbeC_ConnectorOptions& ModifyKinematicOptions();
  void SetKinematicOptions(const kbeC_ConnectorOptions& v) { kinematicOptions = cow_COW<kbeC_ConnectorOptions>(v); }
  void ClearKinematicOptions() { kinematicOptions = cow_COW<kbeC_ConnectorOptions>(); }
  ForcePotentialOperatorEnm GetForcePotentialOperator() const { return forcePotentialOperator; }
  void SetForcePotentialOperator(ForcePotentialOperatorEnm v) { forcePotentialOperator = v; }
  double GetForcePotentialExponent() const { return forcePotentialExponent; }
  void SetForcePotentialExponent(double v) { forcePotentialExponent = v; }
  const cow_List<cow_COW<kbeC_ConnectorPotential>>& GetConnectorPotentials() const { return connectorPotentials; }
  cow_List<cow_COW<kbeC_ConnectorPotential>>& ModifyConnectorPotentials() { return connectorPotentials; }
  void SetConnectorPotentials(const cow_List<cow_COW<kbeC_ConnectorPotential>>& v) { connectorPotentials = v; }
  std::int32_t GetLastId() const { return lastId; }
  void SetLastId(std::int32_t v) { lastId = v; }

 private:
  cow_List<std::int32_t> components;
  CouplingEnm coupling = CouplingEnm::UNCOUPLED;
  bool isotropic = true;
  IsotropicTypeEnm isotropicType = IsotropicTypeEnm::TABULAR;
  bool isotropicTemperature = false;
  std::int32_t isotropicDependencies = 0;
  cow_2DArray<double> isotropicTable;
  cow_COW<kbeC_ConnectorOptions> isotropicOptions;
  bool kinematic = false;
  KinematicTypeEnm kinematicType = KinematicTypeEnm::HALF_CYCLE;
  bool kinematicTemperature = false;
  std::int32_t kinematicDependencies = 0;
  cow_2DArray<double> kinematicTable;
  cow_COW<kbeC_ConnectorOptions> kinematicOptions;
  ForcePotentialOperatorEnm forcePotentialOperator = ForcePotentialOperatorEnm::SUM;
  double forcePotentialExponent = 2.0;
  cow_List<cow_COW<kbeC_ConnectorPotential>> connectorPotentials;
  std::int32_t lastId = 0;
};

extern template class fw_PersistentClass<kbeC_ConnectorPlasticity, kbeC_ConnectorBehaviorOption>;
