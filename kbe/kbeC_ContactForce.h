#pragma once
// One contact-force definition of a friction behavior: the component (by number or derived)
// that carries the contact force, and its table.
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

class kbeC_ContactForce : public fw_PersistentClass<kbeC_ContactForce, mem_Allocated> {
 public:
  enum class ContactForceStyleEnm : std::int32_t { COMPONENT_NUMBER = 0, DERIVED_COMPONENT = 1 };
  static constexpr omu_EnumLiteral kContactForceStyleLiterals[] = {{"COMPONENT_NUMBER", 0}, {"DERIVED_COMPONENT", 1}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(ContactForceStyleEnm) { return kContactForceStyleLiterals; }

  static constexpr const char* kClassName = "kbeC_ContactForce";
  static constexpr const char* kScriptName = "ContactForce";
  static constexpr int kVersion = 836;
  static constexpr unsigned TypeId() { return fw_TypeId(680, 4); }

  // Persistent fields in write order (the numbers record the order they were added in).
  static constexpr auto Fields() {
    using C = kbeC_ContactForce;
    return std::tuple{
        fw_Field{"independentComponent", 0, "independentComponent", &C::independentComponent},
        fw_Field{"contactForceStyle", 1, "contactForceStyle", &C::contactForceStyle},
        fw_Field{"contactForceComponent", 2, "contactForceComponent", &C::contactForceComponent},
        fw_Field{"derivedComponent", 3, "derivedComponent", &C::derivedComponent},
        fw_Field{"table", 4, "table", &C::table},
    };
  }

  kbeC_ContactForce() = default;
  explicit kbeC_ContactForce(const cls_ReadVisitor& r);
  virtual ~kbeC_ContactForce() = default;
  virtual void AssertValid() const;

  const cls_Uid& GetUid() const { return uid; }
  std::int32_t GetIndependentComponent() const { return independentComponent; }
  void SetIndependentComponent(std::int32_t v) { independentComponent = v; }
  ContactForceStyleEnm GetContactForceStyle() const { return contactForceStyle; }
  void SetContactForceStyle(ContactForceStyleEnm v) { contactForceStyle = v; }
  std::int32_t GetContactForceComponent() const { return contactForceComponent; }
  void SetContactForceComponent(std::int32_t v) { contactForceComponent = v; }
  bool HasDerivedComponent() const { return !derivedComponent.IsNull(); }
  const kbeC_DerivedComponent& GetDerivedComponent() const;
  kbeC_DerivedComponent& ModifyDerivedComponent();
  void SetDerivedComponent(const kbeC_DerivedComponent& v) { derivedComponent = cow_COW<kbeC_DerivedComponent>(v); }
  void ClearDerivedComponent() { derivedComponent = cow_COW<kbeC_DerivedComponent>(); }
  const cow_2DArray<double>& GetTable() const { return table; }
  void SetTable(const cow_2DArray<double>& v) { table = v; }

 private:
  std::int32_t independentComponent = 1;
  ContactForceStyleEnm contactForceStyle = ContactForceStyleEnm::COMPONENT_NUMBER;
  std::int32_t contactForceComponent = 1;
  cow_COW<kbeC_DerivedComponent> derivedComponent;
  cow_2DArray<double> table;
  cls_Uid uid;
};

extern template class fw_PersistentClass<kbeC_ContactForce, mem_Allocated>;

// The contact forces of a friction behavior.
using kbeC_ContactForceList = cow_List<cow_COW<kbeC_ContactForce>>;
