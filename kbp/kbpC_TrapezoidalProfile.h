#pragma once
// A solid trapezoid: top width a, height b, bottom width c and the offset d of the top's
// start from the bottom's.
#include "framework/fw_PersistentClass.h"
#include "kbp/kbpC_BeamProfile.h"

class kbpC_TrapezoidalProfile : public fw_PersistentClass<kbpC_TrapezoidalProfile, kbpC_BeamProfile> {
 public:
  using BaseClass = kbpC_BeamProfile;
  using RootClass = kbpC_BeamProfile;
  static constexpr const char* kClassName = "kbpC_TrapezoidalProfile";
  static constexpr const char* kScriptName = "TrapezoidalProfile";
  static constexpr unsigned TypeId() { return fw_TypeId(612, 7); }

  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = kbpC_TrapezoidalProfile;
    return std::tuple{
        fw_Field{"a", 0, "a", &C::a},
        fw_Field{"b", 1, "b", &C::b},
        fw_Field{"c", 2, "c", &C::c},
        fw_Field{"d", 3, "d", &C::d},
    };
  }

  kbpC_TrapezoidalProfile() = default;
  explicit kbpC_TrapezoidalProfile(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  double GetA() const { return a; }
  void SetA(double v) { a = v; }
  double GetB() const { return b; }
  void SetB(double v) { b = v; }
  double GetC() const { return c; }
  void SetC(double v) { c = v; }
  double GetD() const { return d; }
  void SetD(double v) { d = v; }

 private:
  double a = 0.1;
  double b = 0.1;
  double c = 0.05;
  double d = 0.0;
};

extern template class fw_PersistentClass<kbpC_TrapezoidalProfile, kbpC_BeamProfile>;
