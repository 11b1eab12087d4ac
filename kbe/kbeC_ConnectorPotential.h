#pragma once
// One term of a connector potential: a component (by number or a derived component), scaled,
// shifted and raised to a power.
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
#include "kbe/kbeC_DerivedComponent.h"

class cls_ReadVisitor;
class cls_WriteVisitor;
class cls_ClassRegistrar;

class kbeC_ConnectorPotential : public fw_PersistentClass<kbeC_ConnectorPotential, mem_Allocated> {
 public:
  enum class ComponentStyleEnm : std::int32_t { COMPONENT_NUMBER = 0, DERIVED_COMPONENT = 1 };
  enum class SignEnm : std::int32_t { POSITIVE = 0, NEGATIVE = 1 };
  enum class HFunctionEnm : std::int32_t { ABS = 0, MACAULEY = 1, IDENTITY = 2 };
  static constexpr omu_EnumLiteral kComponentStyleLiterals[] = {{"COMPONENT_NUMBER", 0}, {"DERIVED_COMPONENT", 1}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(ComponentStyleEnm) { return kComponentStyleLiterals; }
  static constexpr omu_EnumLiteral kSignLiterals[] = {{"POSITIVE", 0}, {"NEGATIVE", 1}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(SignEnm) { return kSignLiterals; }
  static constexpr omu_EnumLiteral kHFunctionLiterals[] = {{"ABS", 0}, {"MACAULEY", 1}, {"IDENTITY", 2}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(HFunctionEnm) { return kHFunctionLiterals; }

  static constexpr const char* kClassName = "kbeC_ConnectorPotential";
  static constexpr const char* kScriptName = "ConnectorPotential";
  static constexpr int kVersion = 836;
  static constexpr unsigned TypeId() { return fw_TypeId(680, 31); }

  // Persistent fields in write order (the numbers record the order they were added in).
  static constexpr auto Fields() {
    using C = kbeC_ConnectorPotential;
    return std::tuple{
        fw_Field{"componentStyle", 8, "componentStyle", &C::componentStyle},
        fw_Field{"componentNumber", 0, "componentNumber", &C::componentNumber},
        fw_Field{"componentName", 1, "componentName", &C::componentName},
        fw_Field{"sign", 2, "sign", &C::sign},
        fw_Field{"scaleFactor", 3, "scaleFactor", &C::scaleFactor},
        fw_Field{"positiveExponent", 4, "positiveExponent", &C::positiveExponent},
        fw_Field{"shiftFactor", 5, "shiftFactor", &C::shiftFactor},
        fw_Field{"hFunction", 6, "hFunction", &C::hFunction},
        fw_Field{"derivedComponent", 9, "derivedComponent", &C::derivedComponent},
    };
  }

  kbeC_ConnectorPotential() = default;
  explicit kbeC_ConnectorPotential(const cls_ReadVisitor& r);
  virtual ~kbeC_ConnectorPotential() = default;
  virtual void AssertValid() const;

  const cls_Uid& GetUid() const { return uid; }
  ComponentStyleEnm GetComponentStyle() const { return componentStyle; }
  void SetComponentStyle(ComponentStyleEnm v) { componentStyle = v; }
  std::int32_t GetComponentNumber() const { return componentNumber; }
  void SetComponentNumber(std::int32_t v) { componentNumber = v; }
  const cow_String& GetComponentName() const { return componentName; }
  void SetComponentName(const cow_String& v) { componentName = v; }
  SignEnm GetSign() const { return sign; }
  void SetSign(SignEnm v) { sign = v; }
  double GetScaleFactor() const { return scaleFactor; }
  void SetScaleFactor(double v) { scaleFactor = v; }
  double GetPositiveExponent() const { return positiveExponent; }
  void SetPositiveExponent(double v) { positiveExponent = v; }
  double GetShiftFactor() const { return shiftFactor; }
  void SetShiftFactor(double v) { shiftFactor = v; }
  HFunctionEnm GetHFunction() const { return hFunction; }
  void SetHFunction(HFunctionEnm v) { hFunction = v; }
  bool HasDerivedComponent() const { return !derivedComponent.IsNull(); }
  const kbeC_DerivedComponent& GetDerivedComponent() const;
  kbeC_DerivedComponent& ModifyDerivedComponent();
  void SetDerivedComponent(const kbeC_DerivedComponent& v) { derivedComponent = cow_COW<kbeC_DerivedComponent>(v); }
  void ClearDerivedComponent() { derivedComponent = cow_COW<kbeC_DerivedComponent>(); }

 private:
  ComponentStyleEnm componentStyle = ComponentStyleEnm::COMPONENT_NUMBER;
  std::int32_t componentNumber = 1;
  cow_String componentName;
  SignEnm sign = SignEnm::POSITIVE;
  double scaleFactor = 1.0;
  double positiveExponent = 1.0;
  double shiftFactor = 0.0;
  HFunctionEnm hFunction = HFunctionEnm::ABS;
  cow_COW<kbeC_DerivedComponent> derivedComponent;
  cls_Uid uid;
};

extern template class fw_PersistentClass<kbeC_ConnectorPotential, mem_Allocated>;
