#pragma once
// Damping of connector components, viscous or structural, linear or nonlinear, coupled or not.
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

class kbeC_ConnectorDamping : public fw_PersistentClass<kbeC_ConnectorDamping, kbeC_ConnectorBehaviorOption> {
 public:
  using BaseClass = kbeC_ConnectorBehaviorOption;
  using RootClass = kbeC_ConnectorBehaviorOption;
  enum class BehaviorEnm : std::int32_t { LINEAR = 0, NONLINEAR = 1 };
  enum class CouplingEnm : std::int32_t { UNCOUPLED = 0, COUPLED = 1, COUPLED_POSITION = 2, COUPLED_MOTION = 3 };
  enum class ConnDampTypeEnum : std::int32_t { VISCOUS = 0, STRUCTURAL = 1 };
  static constexpr omu_EnumLiteral kBehaviorLiterals[] = {{"LINEAR", 0}, {"NONLINEAR", 1}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(BehaviorEnm) { return kBehaviorLiterals; }
  static constexpr omu_EnumLiteral kCouplingLiterals[] = {{"UNCOUPLED", 0}, {"COUPLED", 1}, {"COUPLED_POSITION", 2}, {"COUPLED_MOTION", 3}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(CouplingEnm) { return kCouplingLiterals; }
  static constexpr omu_EnumLiteral kConnDampTypeLiterals[] = {{"VISCOUS", 0}, {"STRUCTURAL", 1}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(ConnDampTypeEnum) { return kConnDampTypeLiterals; }

  static constexpr const char* kClassName = "kbeC_ConnectorDamping";
  static constexpr const char* kScriptName = "ConnectorDamping";
  static constexpr int kVersion = 1125;
  static constexpr unsigned TypeId() { return fw_TypeId(680, 7); }

  // Persistent fields in write order (the numbers record the order they were added in).
  static constexpr auto Fields() {
    using C = kbeC_ConnectorDamping;
    return std::tuple{
        fw_Field{"components", 0, "components", &C::components},
        fw_Field{"behavior", 1, "behavior", &C::behavior},
        fw_Field{"coupling", 2, "coupling", &C::coupling},
        fw_Field{"dependencies", 3, "dependencies", &C::dependencies},
        fw_Field{"temperatureDependency", 4, "temperatureDependency", &C::temperatureDependency},
        fw_Field{"frequencyDependency", 8, "frequencyDependency", &C::frequencyDependency},
        fw_Field{"independentComponents", 5, "independentComponents", &C::independentComponents},
        fw_Field{"table", 6, "table", &C::table},
        fw_Field{"options", 7, "options", &C::options},
        fw_Field{"connDampType", 9, "connDampType", &C::connDampType},
    };
  }

  kbeC_ConnectorDamping() = default;
  explicit kbeC_ConnectorDamping(const cls_ReadVisitor& r);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  const cow_List<std::int32_t>& GetComponents() const { return components; }
  void SetComponents(const cow_List<std::int32_t>& v) { components = v; }
  BehaviorEnm GetBehavior() const { return behavior; }
  void SetBehavior(BehaviorEnm v) { behavior = v; }
  CouplingEnm GetCoupling() const { return coupling; }
  void SetCoupling(CouplingEnm v) { coupling = v; }
  std::int32_t GetDependencies() const { return dependencies; }
  void SetDependencies(std::int32_t v) { dependencies = v; }
  bool GetTemperatureDependency() const { return temperatureDependency; }
  void SetTemperatureDependency(bool v) { temperatureDependency = v; }
  bool GetFrequencyDependency() const { return frequencyDependency; }
  void SetFrequencyDependency(bool v) { frequencyDependency = v; }
  const cow_List<std::int32_t>& GetIndependentComponents() const { return independentComponents; }
  void SetIndependentComponents(const cow_List<std::int32_t>& v) { independentComponents = v; }
  const cow_2DArray<double>& GetTable() const { return table; }
  void SetTable(const cow_2DArray<double>& v) { table = v; }
  bool HasOptions() const { return !options.IsNull(); }
  const kbeC_ConnectorOptions& GetOptions() const;
  kbeC_ConnectorOptions& ModifyOptions();
  void SetOptions(const kbeC_ConnectorOptions& v) { options = cow_COW<kbeC_ConnectorOptions>(v); }
  void ClearOptions() { options = cow_COW<kbeC_ConnectorOptions>(); }
  ConnDampTypeEnum GetConnDampType() const { return connDampType; }
  void SetConnDampType(ConnDampTypeEnum v) { connDampType = v; }

 private:
  cow_List<std::int32_t> components;
  BehaviorEnm behavior = BehaviorEnm::LINEAR;
  CouplingEnm coupling = CouplingEnm::UNCOUPLED;
  std::int32_t dependencies = 0;
  bool temperatureDependency = false;
  bool frequencyDependency = false;
  cow_List<std::int32_t> independentComponents;
  cow_2DArray<double> table;
  cow_COW<kbeC_ConnectorOptions> options;
  ConnDampTypeEnum connDampType = ConnDampTypeEnum::VISCOUS;
};

extern template class fw_PersistentClass<kbeC_ConnectorDamping, kbeC_ConnectorBehaviorOption>;
