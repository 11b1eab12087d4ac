#pragma once
// Stops of a connector: the lower and upper limits of the motion of its components.
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

class kbeC_ConnectorStop : public fw_PersistentClass<kbeC_ConnectorStop, kbeC_ConnectorBehaviorOption> {
 public:
  using BaseClass = kbeC_ConnectorBehaviorOption;
  using RootClass = kbeC_ConnectorBehaviorOption;

  static constexpr const char* kClassName = "kbeC_ConnectorStop";
  static constexpr const char* kScriptName = "ConnectorStop";
  static constexpr int kVersion = 811;
  static constexpr unsigned TypeId() { return fw_TypeId(680, 14); }

  // Persistent fields in write order (the numbers record the order they were added in).
  static constexpr auto Fields() {
    using C = kbeC_ConnectorStop;
    return std::tuple{
        fw_Field{"components", 0, "components", &C::components},
        fw_Field{"minMotion", 1, "minMotion", &C::minMotion},
        fw_Field{"maxMotion", 2, "maxMotion", &C::maxMotion},
    };
  }

  kbeC_ConnectorStop() = default;
  explicit kbeC_ConnectorStop(const cls_ReadVisitor& r);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  const cow_List<std::int32_t>& GetComponents() const { return components; }
  void SetComponents(const cow_List<std::int32_t>& v) { components = v; }
  double GetMinMotion() const { return minMotion; }
  void SetMinMotion(double v) { minMotion = v; }
  double GetMaxMotion() const { return maxMotion; }
  void SetMaxMotion(double v) { maxMotion = v; }

 private:
  cow_List<std::int32_t> components;
  fw_Unspecified minMotion = kbeC_kUnspecified;
  fw_Unspecified maxMotion = kbeC_kUnspecified;
};

extern template class fw_PersistentClass<kbeC_ConnectorStop, kbeC_ConnectorBehaviorOption>;
