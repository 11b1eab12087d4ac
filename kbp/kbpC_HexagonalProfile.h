#pragma once
// A hollow regular hexagon of outer radius r and wall thickness t.
#include "framework/fw_PersistentClass.h"
#include "kbp/kbpC_BeamProfile.h"

class kbpC_HexagonalProfile : public fw_PersistentClass<kbpC_HexagonalProfile, kbpC_BeamProfile> {
 public:
  using BaseClass = kbpC_BeamProfile;
  using RootClass = kbpC_BeamProfile;
  static constexpr const char* kClassName = "kbpC_HexagonalProfile";
  static constexpr const char* kScriptName = "HexagonalProfile";
  static constexpr unsigned TypeId() { return fw_TypeId(612, 6); }

  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = kbpC_HexagonalProfile;
    return std::tuple{
        fw_Field{"r", 0, "r", &C::r},
        fw_Field{"t", 1, "t", &C::t},
    };
  }

  kbpC_HexagonalProfile() = default;
  explicit kbpC_HexagonalProfile(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  double GetR() const { return r; }
  void SetR(double v) { r = v; }
  double GetT() const { return t; }
  void SetT(double v) { t = v; }

 private:
  double r = 0.05;
  double t = 0.005;
};

extern template class fw_PersistentClass<kbpC_HexagonalProfile, kbpC_BeamProfile>;
