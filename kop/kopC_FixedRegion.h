#pragma once
// Nodes of a shape or bead design held in some directions.
#include <cstdint>
#include <tuple>

#include "framework/fw_PersistentClass.h"
#include "kop/kopC_GeometricRestriction.h"
#include "kop/kopC_Enums.h"
#include "platform/model/rgnC_Region.h"

class kopC_FixedRegion : public fw_PersistentClass<kopC_FixedRegion, kopC_GeometricRestriction> {
 public:
  using BaseClass = kopC_GeometricRestriction;
  using RootClass = kopC_GeometricRestriction;
  static constexpr const char* kClassName = "kopC_FixedRegion";
  static constexpr const char* kScriptName = "ShapeFixedRegion";
  static constexpr int kVersion = 1554;
  static constexpr unsigned TypeId() { return fw_TypeId(932, 83); }
  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = kopC_FixedRegion;
    return std::tuple{
        fw_Field{"region", 0, "region", &C::region},
        fw_Field{"u1", 1, "u1", &C::u1},
        fw_Field{"u2", 2, "u2", &C::u2},
        fw_Field{"u3", 3, "u3", &C::u3},
    };
  }

  kopC_FixedRegion() = default;
  explicit kopC_FixedRegion(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  const rgnC_Region& GetRegion() const { return region; }
  void SetRegion(const rgnC_Region& v) { region = v; }
  bool GetU1() const { return u1; }
  void SetU1(bool v) { u1 = v; }
  bool GetU2() const { return u2; }
  void SetU2(bool v) { u2 = v; }
  bool GetU3() const { return u3; }
  void SetU3(bool v) { u3 = v; }

 private:
  rgnC_Region region;
  bool u1 = false;
  bool u2 = false;
  bool u3 = false;
};

extern template class fw_PersistentClass<kopC_FixedRegion, kopC_GeometricRestriction>;
