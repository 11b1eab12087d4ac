#pragma once
// A hat section: height h, the centroid's distance l from the bottom, crown width b, brim widths
// b1 and b2, crown and brim thicknesses t1 and t2, wall thickness t3.
#include "framework/fw_PersistentClass.h"
#include "kbp/kbpC_BeamProfile.h"

class kbpC_HatProfile : public fw_PersistentClass<kbpC_HatProfile, kbpC_BeamProfile> {
 public:
  using BaseClass = kbpC_BeamProfile;
  using RootClass = kbpC_BeamProfile;
  static constexpr const char* kClassName = "kbpC_HatProfile";
  static constexpr const char* kScriptName = "HatProfile";
  static constexpr unsigned TypeId() { return fw_TypeId(612, 12); }

  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = kbpC_HatProfile;
    return std::tuple{
        fw_Field{"l", 0, "l", &C::l},
        fw_Field{"h", 1, "h", &C::h},
        fw_Field{"b", 2, "b", &C::b},
        fw_Field{"b1", 3, "b1", &C::b1},
        fw_Field{"b2", 4, "b2", &C::b2},
        fw_Field{"t1", 5, "t1", &C::t1},
        fw_Field{"t2", 6, "t2", &C::t2},
        fw_Field{"t3", 7, "t3", &C::t3},
    };
  }

  kbpC_HatProfile() = default;
  explicit kbpC_HatProfile(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  double GetL() const { return l; }
  void SetL(double v) { l = v; }
  double GetH() const { return h; }
  void SetH(double v) { h = v; }
  double GetB() const { return b; }
  void SetB(double v) { b = v; }
  double GetB1() const { return b1; }
  void SetB1(double v) { b1 = v; }
  double GetB2() const { return b2; }
  void SetB2(double v) { b2 = v; }
  double GetT1() const { return t1; }
  void SetT1(double v) { t1 = v; }
  double GetT2() const { return t2; }
  void SetT2(double v) { t2 = v; }
  double GetT3() const { return t3; }
  void SetT3(double v) { t3 = v; }

 private:
  double l = 0.05;
  double h = 0.1;
  double b = 0.05;
  double b1 = 0.05;
  double b2 = 0.05;
  double t1 = 0.005;
  double t2 = 0.005;
  double t3 = 0.005;
};

extern template class fw_PersistentClass<kbpC_HatProfile, kbpC_BeamProfile>;
