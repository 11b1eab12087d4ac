#pragma once
// Locking of a connector: the motion and force limits at which components lock.
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

class kbeC_ConnectorLock : public fw_PersistentClass<kbeC_ConnectorLock, kbeC_ConnectorBehaviorOption> {
 public:
  using BaseClass = kbeC_ConnectorBehaviorOption;
  using RootClass = kbeC_ConnectorBehaviorOption;
  enum class LockingComponentEnm : std::int32_t { ALL = 0 };
  static constexpr omu_EnumLiteral kLockingComponentLiterals[] = {{"ALL", 0}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(LockingComponentEnm) { return kLockingComponentLiterals; }

  static constexpr const char* kClassName = "kbeC_ConnectorLock";
  static constexpr const char* kScriptName = "ConnectorLock";
  static constexpr int kVersion = 811;
  static constexpr unsigned TypeId() { return fw_TypeId(680, 12); }

  // Persistent fields in write order (the numbers record the order they were added in).
  static constexpr auto Fields() {
    using C = kbeC_ConnectorLock;
    return std::tuple{
        fw_Field{"components", 0, "components", &C::components},
        fw_Field{"lockingComponent", 1, "lockingComponent", &C::lockingComponent},
        fw_Field{"minMotion", 2, "minMotion", &C::minMotion},
        fw_Field{"maxMotion", 3, "maxMotion", &C::maxMotion},
        fw_Field{"minForce", 4, "minForce", &C::minForce},
        fw_Field{"maxForce", 5, "maxForce", &C::maxForce},
    };
  }

  kbeC_ConnectorLock() = default;
  explicit kbeC_ConnectorLock(const cls_ReadVisitor& r);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  const cow_List<std::int32_t>& GetComponents() const { return components; }
  void SetComponents(const cow_List<std::int32_t>& v) { components = v; }
  std::int32_t GetLockingComponent() const { return lockingComponent; }
  void SetLockingComponent(std::int32_t v) { lockingComponent = v; }
  double GetMinMotion() const { return minMotion; }
  void SetMinMotion(double v) { minMotion = v; }
  double GetMaxMotion() const { return maxMotion; }
  void SetMaxMotion(double v) { maxMotion = v; }
  double GetMinForce() const { return minForce; }
  void SetMinForce(double v) { minForce = v; }
  double GetMaxForce() const { return maxForce; }
  void SetMaxForce(double v) { maxForce = v; }

 private:
  cow_List<std::int32_t> components;
  kbeC_ComponentOrAll<LockingComponentEnm> lockingComponent = kbeC_kAll;
  fw_Unspecified minMotion = kbeC_kUnspecified;
  fw_Unspecified maxMotion = kbeC_kUnspecified;
  fw_Unspecified minForce = kbeC_kUnspecified;
  fw_Unspecified maxForce = kbeC_kUnspecified;
};

extern template class fw_PersistentClass<kbeC_ConnectorLock, kbeC_ConnectorBehaviorOption>;
