#pragma once
// An L section: leg widths a and b, thicknesses t1 and t2.
#include "framework/fw_PersistentClass.h"
#include "kbp/kbpC_BeamProfile.h"

class kbpC_LbeamProfile : public fw_PersistentClass<kbpC_LbeamProfile, kbpC_BeamProfile> {
 public:
  using BaseClass = kbpC_BeamProfile;
  using RootClass = kbpC_BeamProfile;
  static constexpr const char* kClassName = "kbpC_LbeamProfile";
  static constexpr const char* kScriptName = "LProfile";
  static constexpr unsigned TypeId() { return fw_TypeId(612, 9); }

  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = kbpC_LbeamProfile;
    return std::tuple{
        fw_Field{"a", 0, "a", &C::a},
        fw_Field{"b", 1, "b", &C::b},
        fw_Field{"t1", 2, "t1", &C::t1},
        fw_Field{"t2", 3, "t2", &C::t2},
    };
  }

  kbpC_LbeamProfile() = default;
  explicit kbpC_LbeamProfile(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  double GetA() const { return a; }
  void SetA(double v) { a = v; }
  double GetB() const { return b; }
  void SetB(double v) { b = v; }
  double GetT1() const { return t1; }
  void SetT1(double v) { t1 = v; }
  double GetT2() const { return t2; }
  void SetT2(double v) { t2 = v; }

 private:
  double a = 0.05;
  double b = 0.05;
  double t1 = 0.005;
  double t2 = 0.005;
};

extern template class fw_PersistentClass<kbpC_LbeamProfile, kbpC_BeamProfile>;
