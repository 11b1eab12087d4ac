#pragma once
// A hollow rectangle of width a and height b. The walls are t1 (left), t2 (top), t3 (right) and
// t4 (bottom); with uniform thickness, t1 is the thickness of all four.
#include "framework/fw_PersistentClass.h"
#include "kbp/kbpC_BeamProfile.h"

class kbpC_BoxProfile : public fw_PersistentClass<kbpC_BoxProfile, kbpC_BeamProfile> {
 public:
  using BaseClass = kbpC_BeamProfile;
  using RootClass = kbpC_BeamProfile;
  static constexpr const char* kClassName = "kbpC_BoxProfile";
  static constexpr const char* kScriptName = "BoxProfile";
  static constexpr unsigned TypeId() { return fw_TypeId(612, 3); }

  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = kbpC_BoxProfile;
    return std::tuple{
        fw_Field{"a", 0, "a", &C::a},
        fw_Field{"b", 1, "b", &C::b},
        fw_Field{"uniformThickness", 2, "uniformThickness", &C::uniformThickness},
        fw_Field{"t1", 3, "t1", &C::t1},
        fw_Field{"t2", 4, "t2", &C::t2},
        fw_Field{"t3", 5, "t3", &C::t3},
        fw_Field{"t4", 6, "t4", &C::t4},
    };
  }

  kbpC_BoxProfile() = default;
  explicit kbpC_BoxProfile(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  double GetA() const { return a; }
  void SetA(double v) { a = v; }
  double GetB() const { return b; }
  void SetB(double v) { b = v; }
  bool GetUniformThickness() const { return uniformThickness; }
  void SetUniformThickness(bool v) { uniformThickness = v; }
  double GetT1() const { return t1; }
  void SetT1(double v) { t1 = v; }
  double GetT2() const { return t2; }
  void SetT2(double v) { t2 = v; }
  double GetT3() const { return t3; }
  void SetT3(double v) { t3 = v; }
  double GetT4() const { return t4; }
  void SetT4(double v) { t4 = v; }

 private:
  double a = 0.1;
  double b = 0.2;
  bool uniformThickness = true;
  double t1 = 0.01;
  double t2 = 0.01;
  double t3 = 0.01;
  double t4 = 0.01;
};

extern template class fw_PersistentClass<kbpC_BoxProfile, kbpC_BeamProfile>;
