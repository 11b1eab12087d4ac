#pragma once
// A section given by its properties: area, moments of inertia i11, i12, i22, torsional
// constant j, sectorial moment gammaO and warping constant gammaW.
#include "framework/fw_PersistentClass.h"
#include "kbp/kbpC_BeamProfile.h"

class kbpC_GeneralizedProfile : public fw_PersistentClass<kbpC_GeneralizedProfile, kbpC_BeamProfile> {
 public:
  using BaseClass = kbpC_BeamProfile;
  using RootClass = kbpC_BeamProfile;
  static constexpr const char* kClassName = "kbpC_GeneralizedProfile";
  static constexpr const char* kScriptName = "GeneralizedProfile";
  static constexpr unsigned TypeId() { return fw_TypeId(612, 14); }

  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = kbpC_GeneralizedProfile;
    return std::tuple{
        fw_Field{"area", 0, "area", &C::area},
        fw_Field{"i11", 1, "i11", &C::i11},
        fw_Field{"i12", 2, "i12", &C::i12},
        fw_Field{"i22", 3, "i22", &C::i22},
        fw_Field{"j", 4, "j", &C::j},
        fw_Field{"gammaO", 5, "gammaO", &C::gammaO},
        fw_Field{"gammaW", 6, "gammaW", &C::gammaW},
    };
  }

  kbpC_GeneralizedProfile() = default;
  explicit kbpC_GeneralizedProfile(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  double GetArea() const { return area; }
  void SetArea(double v) { area = v; }
  double GetI11() const { return i11; }
  void SetI11(double v) { i11 = v; }
  double GetI12() const { return i12; }
  void SetI12(double v) { i12 = v; }
  double GetI22() const { return i22; }
  void SetI22(double v) { i22 = v; }
  double GetJ() const { return j; }
  void SetJ(double v) { j = v; }
  double GetGammaO() const { return gammaO; }
  void SetGammaO(double v) { gammaO = v; }
  double GetGammaW() const { return gammaW; }
  void SetGammaW(double v) { gammaW = v; }

 private:
  double area = 1.0;
  double i11 = 1.0;
  double i12 = 0.0;
  double i22 = 1.0;
  double j = 1.0;
  double gammaO = 0.0;
  double gammaW = 0.0;
};

extern template class fw_PersistentClass<kbpC_GeneralizedProfile, kbpC_BeamProfile>;
