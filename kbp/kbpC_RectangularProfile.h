#pragma once
// A solid rectangle of width a and height b.
#include "framework/fw_PersistentClass.h"
#include "kbp/kbpC_BeamProfile.h"

class kbpC_RectangularProfile : public fw_PersistentClass<kbpC_RectangularProfile, kbpC_BeamProfile> {
 public:
  using BaseClass = kbpC_BeamProfile;
  using RootClass = kbpC_BeamProfile;
  static constexpr const char* kClassName = "kbpC_RectangularProfile";
  static constexpr const char* kScriptName = "RectangularProfile";
  static constexpr unsigned TypeId() { return fw_TypeId(612, 2); }

  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = kbpC_RectangularProfile;
    return std::tuple{
        fw_Field{"a", 0, "a", &C::a},
        fw_Field{"b", 1, "b", &C::b},
    };
  }

  kbpC_RectangularProfile() = default;
  explicit kbpC_RectangularProfile(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  double GetA() const { return a; }
  void SetA(double v) { a = v; }
  double GetB() const { return b; }
  void SetB(double v) { b = v; }

 private:
  double a = 0.1;
  double b = 0.2;
};

extern template class fw_PersistentClass<kbpC_RectangularProfile, kbpC_BeamProfile>;
