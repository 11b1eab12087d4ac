#pragma once
// A display body: a part instance drawn as moving with three control points.
#include <cstdint>

#include "framework/fw_PersistentClass.h"
#include "kco/kcoC_Constraint.h"
#include "kco/kcoC_Enums.h"
#include "platform/model/rgnC_Region.h"

class kcoC_DisplayBody : public fw_PersistentClass<kcoC_DisplayBody, kcoC_Constraint> {
 public:
  using BaseClass = kcoC_Constraint;
  using RootClass = kcoC_Constraint;
  static constexpr const char* kClassName = "kcoC_DisplayBody";
  static constexpr const char* kScriptName = "DisplayBody";
  static constexpr unsigned TypeId() { return fw_TypeId(720, 10); }

  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = kcoC_DisplayBody;
    return std::tuple{
        fw_Field{"suppress", 0, "suppress", &C::suppress},
        fw_Field{"instanceId", 1, "instanceId", &C::instanceId},
        fw_Field{"_dot1", 2, "_dot1", &C::_dot1},
        fw_Field{"_dot2", 3, "_dot2", &C::_dot2},
        fw_Field{"_dot3", 4, "_dot3", &C::_dot3},
    };
  }

  kcoC_DisplayBody() = default;
  explicit kcoC_DisplayBody(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  std::int32_t GetInstanceId() const { return instanceId; }
  void SetInstanceId(std::int32_t v) { instanceId = v; }
  const rgnC_Region& Get_dot1() const { return _dot1; }
  void Set_dot1(const rgnC_Region& v) { _dot1 = v; }
  const rgnC_Region& Get_dot2() const { return _dot2; }
  void Set_dot2(const rgnC_Region& v) { _dot2 = v; }
  const rgnC_Region& Get_dot3() const { return _dot3; }
  void Set_dot3(const rgnC_Region& v) { _dot3 = v; }

 private:
  std::int32_t instanceId = 0;  // 0: no instance
  rgnC_Region _dot1;
  rgnC_Region _dot2;
  rgnC_Region _dot3;
};

extern template class fw_PersistentClass<kcoC_DisplayBody, kcoC_Constraint>;
