#pragma once
// Failure of a connector: the motion and force limits beyond which components are released.
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

class kbeC_ConnectorFailure : public fw_PersistentClass<kbeC_ConnectorFailure, kbeC_ConnectorBehaviorOption> {
 public:
  using BaseClass = kbeC_ConnectorBehaviorOption;
  using RootClass = kbeC_ConnectorBehaviorOption;
  enum class ReleaseComponentEnm : std::int32_t { ALL = 0 };
  static constexpr omu_EnumLiteral kReleaseComponentLiterals[] = {{"ALL", 0}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(ReleaseComponentEnm) { return kReleaseComponentLiterals; }

  static constexpr const char* kClassName = "kbeC_ConnectorFailure";
  static constexpr const char* kScriptName = "ConnectorFailure";
  static constexpr int kVersion = 811;
  static constexpr unsigned TypeId() { return fw_TypeId(680, 11); }

  // Persistent fields in write order (the numbers record the order they were added in).
  static constexpr auto Fields() {
    using C = kbeC_ConnectorFailure;
    return std::tuple{
        fw_Field{"components", 0, "components", &C::components},
        fw_Field{"releaseComponent", 1, "releaseComponent", &C::releaseComponent},
        fw_Field{"minMotion", 2, "minMotion", &C::minMotion},
        fw_Field{"maxMotion", 3, "maxMotion", &C::maxMotion},
        fw_Field{"minForce", 4, "minForce", &C::minForce},
        fw_Field{"maxForce", 5, "maxForce", &C::maxForce},
    };
  }

  kbeC_ConnectorFailure() = default;
  explicit kbeC_ConnectorFailure(const cls_ReadVisitor& r);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  const cow_List<std::int32_t>& GetComponents() const { return components; }
  void SetComponents(const cow_List<std::int32_t>& v) { components = v; }
  std::int32_t GetReleaseComponent() const { return releaseComponent; }
  void SetReleaseComponent(std::int32_t v) { releaseComponent = v; }
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
  kbeC_ComponentOrAll<ReleaseComponentEnm> releaseComponent = kbeC_kAll;
  fw_Unspecified minMotion = kbeC_kUnspecified;
  fw_Unspecified maxMotion = kbeC_kUnspecified;
  fw_Unspecified minForce = kbeC_kUnspecified;
  fw_Unspecified maxForce = kbeC_kUnspecified;
};

extern template class fw_PersistentClass<kbeC_ConnectorFailure, kbeC_ConnectorBehaviorOption>;
