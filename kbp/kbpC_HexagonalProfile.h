#pragma once
// A hollow regular hexagon of outer radius r and wall thickness t.
#include "kbp/kbpC_BeamProfile.h"

class kbpC_HexagonalProfile : public kbpC_BeamProfile {
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
  void DBWrite(const cls_WriteVisitor& w) const override;
  kbpC_HexagonalProfile* Copy() const override;
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }
  static void InitializeMetadata(cls_ClassRegistrar& registrar);
  static void CowDtor(void* p);

  bool operator==(const kbpC_HexagonalProfile& o) const;
  bool operator!=(const kbpC_HexagonalProfile& o) const { return !(*this == o); }

  double GetR() const { return r; }
  void SetR(double v) { r = v; }
  double GetT() const { return t; }
  void SetT(double v) { t = v; }

 protected:
  bool SameAs(const kbpC_BeamProfile& o) const override;

 private:
  double r = 0.05;
  double t = 0.005;
};
