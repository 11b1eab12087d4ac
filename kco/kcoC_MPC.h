#pragma once
// A multipoint constraint of a surface's nodes to a reference point, of one of the built-in kinds
// or a user kind.
#include <cstdint>

#include "framework/fw_PersistentClass.h"
#include "kco/kcoC_Constraint.h"
#include "kco/kcoC_Enums.h"
#include "platform/base/cow_String.h"
#include "platform/model/rgnC_Region.h"

class kcoC_MPC : public fw_PersistentClass<kcoC_MPC, kcoC_Constraint> {
 public:
  using BaseClass = kcoC_Constraint;
  using RootClass = kcoC_Constraint;
  static constexpr const char* kClassName = "kcoC_MPC";
  static constexpr const char* kScriptName = "MultipointConstraint";
  static constexpr unsigned TypeId() { return fw_TypeId(720, 4); }

  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = kcoC_MPC;
    return std::tuple{
        fw_Field{"suppress", 0, "suppress", &C::suppress},
        fw_Field{"surface", 1, "surface", &C::surface},
        fw_Field{"refPoint", 2, "refPoint", &C::refPoint},
        fw_Field{"csys", 3, "csys", &C::csys},
        fw_Field{"mpcType", 4, "mpcType", &C::mpcType},
        fw_Field{"userMode", 5, "userMode", &C::userMode},
        fw_Field{"userType", 6, "userType", &C::userType},
    };
  }

  kcoC_MPC() = default;
  explicit kcoC_MPC(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  const rgnC_Region& GetSurface() const { return surface; }
  void SetSurface(const rgnC_Region& v) { surface = v; }
  const rgnC_Region& GetRefPoint() const { return refPoint; }
  void SetRefPoint(const rgnC_Region& v) { refPoint = v; }
  const cow_String& GetCsys() const { return csys; }
  void SetCsys(const cow_String& v) { csys = v; }
  kcoC_MPCTypeEnum GetMpcType() const { return mpcType; }
  void SetMpcType(kcoC_MPCTypeEnum v) { mpcType = v; }
  kcoC_UserModeEnum GetUserMode() const { return userMode; }
  void SetUserMode(kcoC_UserModeEnum v) { userMode = v; }
  std::int32_t GetUserType() const { return userType; }
  void SetUserType(std::int32_t v) { userType = v; }

 private:
  rgnC_Region surface;
  rgnC_Region refPoint;
  cow_String csys;  // the name of a local coordinate system; empty for the global one
  kcoC_MPCTypeEnum mpcType = kcoC_MPCTypeEnum::BEAM_MPC;
  kcoC_UserModeEnum userMode = kcoC_UserModeEnum::DOF_MODE_MPC;
  std::int32_t userType = 0;  // the user kind, for USER_MPC
};

extern template class fw_PersistentClass<kcoC_MPC, kcoC_Constraint>;
