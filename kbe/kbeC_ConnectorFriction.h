#pragma once
// Friction of a connector: predefined or user-customized, with its contact forces (internal
// force data, a contact-force component or potentials) and its friction law.
#include <cstdint>

#include "framework/fw_PersistentClass.h"
#include "framework/fw_Field.h"
#include "framework/fw_OrLiteral.h"
#include "kbe/kbeC_ConnectorBehaviorOption.h"
#include "kbe/kbeC_Values.h"
#include "platform/base/cow_2DArray.h"
#include "platform/base/cow_COW.h"
#include "platform/base/cow_List.h"
#include "platform/base/cow_String.h"
#include "platform/base/omu_PrimEnum.h"
#include "kbe/kbeC_ConnectorOptions.h"
#include "kbe/kbeC_ConnectorPotential.h"
#include "kbe/kbeC_ContactForce.h"
#include "kbe/kbeC_DerivedComponent.h"
#include "kbe/kbeC_TangentialBehavior.h"

// Stored forms of the friction choices.
enum class kbeC_StoredComponentTypeEnm : std::int32_t { POSITION = 0, MOTION = 1, NO_INDEP_COMPS = 2 };
inline constexpr omu_EnumLiteral kbeC_kStoredComponentTypeLiterals[] = {{"POSITION", 0}, {"MOTION", 1}, {"NO_INDEP_COMPS", 2}, {nullptr, 0}};
constexpr const omu_EnumLiteral* omu_LiteralTable(kbeC_StoredComponentTypeEnm) { return kbeC_kStoredComponentTypeLiterals; }
enum class kbeC_StoredContactForceStyleEnm : std::int32_t { NUMBER = 0, DERIV_COMP = 1 };
inline constexpr omu_EnumLiteral kbeC_kStoredContactForceStyleLiterals[] = {{"NUMBER", 0}, {"DERIV_COMP", 1}, {nullptr, 0}};
constexpr const omu_EnumLiteral* omu_LiteralTable(kbeC_StoredContactForceStyleEnm) { return kbeC_kStoredContactForceStyleLiterals; }

class kbeC_ConnectorFriction : public fw_PersistentClass<kbeC_ConnectorFriction, kbeC_ConnectorBehaviorOption> {
 public:
  using BaseClass = kbeC_ConnectorBehaviorOption;
  using RootClass = kbeC_ConnectorBehaviorOption;
  enum class FrictionModelEnm : std::int32_t { PREDEFINED = 0, USER_CUSTOMIZED = 1 };
  enum class SlipStyleEnm : std::int32_t { SPECIFY = 0, COMPUTE = 1 };
  enum class ComponentTypeEnm : std::int32_t { POSITION = 0, MOTION = 1, NO_INDEPENDENT_COMPONENTS = 2 };
  enum class ContactForceStyleEnm : std::int32_t { COMPONENT_NUMBER = 0, DERIVED_COMPONENT = 1 };
  enum class ForcePotentialOperatorEnm : std::int32_t { SUM = 0, MAXIMUM = 1 };
  static constexpr omu_EnumLiteral kFrictionModelLiterals[] = {{"PREDEFINED", 0}, {"USER_CUSTOMIZED", 1}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(FrictionModelEnm) { return kFrictionModelLiterals; }
  static constexpr omu_EnumLiteral kSlipStyleLiterals[] = {{"SPECIFY", 0}, {"COMPUTE", 1}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(SlipStyleEnm) { return kSlipStyleLiterals; }
  static constexpr omu_EnumLiteral kComponentTypeLiterals[] = {{"POSITION", 0}, {"MOTION", 1}, {"NO_INDEPENDENT_COMPONENTS", 2}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(ComponentTypeEnm) { return kComponentTypeLiterals; }
  static constexpr omu_EnumLiteral kContactForceStyleLiterals[] = {{"COMPONENT_NUMBER", 0}, {"DERIVED_COMPONENT", 1}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(ContactForceStyleEnm) { return kContactForceStyleLiterals; }
  static constexpr omu_EnumLiteral kForcePotentialOperatorLiterals[] = {{"SUM", 0}, {"MAXIMUM", 1}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(ForcePotentialOperatorEnm) { return kForcePotentialOperatorLiterals; }

  static constexpr const char* kClassName = "kbeC_ConnectorFriction";
  static constexpr const char* kScriptName = "ConnectorFriction";
  static constexpr int kVersion = 1022;
  static constexpr unsigned TypeId() { return fw_TypeId(680, 9); }

  // Persistent fields in write order (the numbers record the order they were added in).
  static constexpr auto Fields() {
    using C = kbeC_ConnectorFriction;
    return std::tuple{
        fw_Field{"frictionModel", 0, "frictionModel", &C::frictionModel},
        fw_Field{"slipStyle", 1, "slipStyle", &C::slipStyle},
        fw_Field{"tangentDirs", 2, "tangentDirection", &C::tangentDirection},
        fw_Field{"stickStiffness", 3, "stickStiffness", &C::stickStiffness},
        fw_Field{"componentType", 4, "componentType", &C::componentType},
        fw_Field{"slipDependency", 5, "slipDependency", &C::slipDependency},
        fw_Field{"temperatureDependency", 6, "temperatureDependency", &C::temperatureDependency},
        fw_Field{"dependencies", 7, "dependencies", &C::dependencies},
        fw_Field{"useContForceComponent", 8, "useContactForceComponent", &C::useContactForceComponent},
        fw_Field{"contForceStyle", 17, "contactForceStyle", &C::contactForceStyle},
        fw_Field{"contForceComponent", 9, "contactForceComponent", &C::contactForceComponent},
        fw_Field{"frcPotOperator", 10, "forcePotentialOperator", &C::forcePotentialOperator},
        fw_Field{"frcPotExponent", 11, "forcePotentialExponent", &C::forcePotentialExponent},
        fw_Field{"potentials", 12, "connectorPotentials", &C::connectorPotentials},
        fw_Field{"lastId", 13, "lastId", &C::lastId},
        fw_Field{"independentComponents", 14, "independentComponents", &C::independentComponents},
        fw_Field{"tangentialBehavior", 19, "tangentialBehavior", &C::tangentialBehavior},
        fw_Field{"derivedComponent", 18, "derivedComponent", &C::derivedComponent},
        fw_Field{"contactForces", 20, "contactForces", &C::contactForces},
        fw_Field{"table", 15, "table", &C::table},
        fw_Field{"options", 16, "options", &C::options},
    };
  }

  kbeC_ConnectorFriction() = default;
  explicit kbeC_ConnectorFriction(const cls_ReadVisitor& r);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }
  static void InitializeMetadata(cls_ClassRegistrar& registrar);

  // Appends a potential and counts it in the last-used potential id.
  void AppendConnectorPotential(const kbeC_ConnectorPotential& p);
  FrictionModelEnm GetFrictionModel() const { return frictionModel; }
  void SetFrictionModel(FrictionModelEnm v) { frictionModel = v; }
  SlipStyleEnm GetSlipStyle() const { return slipStyle; }
  void SetSlipStyle(SlipStyleEnm v) { slipStyle = v; }
  std::int32_t GetTangentDirection() const { return tangentDirection; }
  void SetTangentDirection(std::int32_t v) { tangentDirection = v; }
  double GetStickStiffness() const { return stickStiffness; }
  void SetStickStiffness(double v) { stickStiffness = v; }
  ComponentTypeEnm GetComponentType() const { return componentType; }
  void SetComponentType(ComponentTypeEnm v) { componentType = v; }
  bool GetSlipDependency() const { return slipDependency; }
  void SetSlipDependency(bool v) { slipDependency = v; }
  bool GetTemperatureDependency() const { return temperatureDependency; }
  void SetTemperatureDependency(bool v) { temperatureDependency = v; }
  std::int32_t GetDependencies() const { return dependencies; }
  void SetDependencies(std::int32_t v) { dependencies = v; }
  bool GetUseContactForceComponent() const { return useContactForceComponent; }
  void SetUseContactForceComponent(bool v) { useContactForceComponent = v; }
  ContactForceStyleEnm GetContactForceStyle() const { return contactForceStyle; }
  void SetContactForceStyle(ContactForceStyleEnm v) { contactForceStyle = v; }
  std::int32_t GetContactForceComponent() const { return contactForceComponent; }
  void SetContactForceComponent(std::int32_t v) { contactForceComponent = v; }
  ForcePotentialOperatorEnm GetForcePotentialOperator() const { return forcePotentialOperator; }
  void SetForcePotentialOperator(ForcePotentialOperatorEnm v) { forcePotentialOperator = v; }
  double GetForcePotentialExponent() const { return forcePotentialExponent; }
  void SetForcePotentialExponent(double v) { forcePotentialExponent = v; }
  const cow_List<cow_COW<kbeC_ConnectorPotential>>& GetConnectorPotentials() const { return connectorPotentials; }
  cow_List<cow_COW<kbeC_ConnectorPotential>>& ModifyConnectorPotentials() { return connectorPotentials; }
  void SetConnectorPotentials(const cow_List<cow_COW<kbeC_ConnectorPotential>>& v) { connectorPotentials = v; }
  std::int32_t GetLastId() const { return lastId; }
  void SetLastId(std::int32_t v) { lastId = v; }
  const cow_List<std::int32_t>& GetIndependentComponents() const { return independentComponents; }
  void SetIndependentComponents(const cow_List<std::int32_t>& v) { independentComponents = v; }
  bool HasTangentialBehavior() const { return !tangentialBehavior.IsNull(); }
  const kbeC_TangentialBehavior& GetTangentialBehavior() const;
  kbeC_TangentialBehavior& ModifyTangentialBehavior();
  void SetTangentialBehavior(const kbeC_TangentialBehavior& v) { tangentialBehavior = cow_COW<kbeC_TangentialBehavior>(v); }
  void ClearTangentialBehavior() { tangentialBehavior = cow_COW<kbeC_TangentialBehavior>(); }
  bool HasDerivedComponent() const { return !derivedComponent.IsNull(); }
  const kbeC_DerivedComponent& GetDerivedComponent() const;
  kbeC_DerivedComponent& ModifyDerivedComponent();
  void SetDerivedComponent(const kbeC_DerivedComponent& v) { derivedComponent = cow_COW<kbeC_DerivedComponent>(v); }
  void ClearDerivedComponent() { derivedComponent = cow_COW<kbeC_DerivedComponent>(); }
  const cow_List<cow_COW<kbeC_ContactForce>>& GetContactForces() const { return contactForces; }
  cow_List<cow_COW<kbeC_ContactForce>>& ModifyContactForces() { return contactForces; }
  void SetContactForces(const cow_List<cow_COW<kbeC_ContactForce>>& v) { contactForces = v; }
  const cow_2DArray<double>& GetTable() const { return table; }
  void SetTable(const cow_2DArray<double>& v) { table = v; }
  bool HasOptions() const { return !options.IsNull(); }
  const kbeC_ConnectorOptions& GetOptions() const;
  kbeC_ConnectorOptions& ModifyOptions();
  void SetOptions(const kbeC_ConnectorOptions& v) { options = cow_COW<kbeC_ConnectorOptions>(v); }
  void ClearOptions() { options = cow_COW<kbeC_ConnectorOptions>(); }

 private:
  FrictionModelEnm frictionModel = FrictionModelEnm::PREDEFINED;
  SlipStyleEnm slipStyle = SlipStyleEnm::SPECIFY;
  std::int32_t tangentDirection = 1;
  fw_Unspecified stickStiffness = kbeC_kUnspecified;
  kbeC_StoredEnum<ComponentTypeEnm, kbeC_StoredComponentTypeEnm> componentType = ComponentTypeEnm::NO_INDEPENDENT_COMPONENTS;
  bool slipDependency = false;
  bool temperatureDependency = false;
  std::int32_t dependencies = 0;
  bool useContactForceComponent = false;
  kbeC_StoredEnum<ContactForceStyleEnm, kbeC_StoredContactForceStyleEnm> contactForceStyle = ContactForceStyleEnm::COMPONENT_NUMBER;
  std::int32_t contactForceComponent = 1;
  ForcePotentialOperatorEnm forcePotentialOperator = ForcePotentialOperatorEnm::SUM;
  double forcePotentialExponent = 2.0;
  cow_List<cow_COW<kbeC_ConnectorPotential>> connectorPotentials;
  std::int32_t lastId = 0;
  cow_List<std::int32_t> independentComponents;
  cow_COW<kbeC_TangentialBehavior> tangentialBehavior;
  cow_COW<kbeC_DerivedComponent> derivedComponent;
  cow_List<cow_COW<kbeC_ContactForce>> contactForces;
  cow_2DArray<double> table;
  cow_COW<kbeC_ConnectorOptions> options;
};

extern template class fw_PersistentClass<kbeC_ConnectorFriction, kbeC_ConnectorBehaviorOption>;
