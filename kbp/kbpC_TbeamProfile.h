#pragma once
// A T section: flange width b, height h, the centroid's distance l from the top, flange
// thickness tf and web thickness tw.
#include "framework/fw_PersistentClass.h"
#include "kbp/kbpC_BeamProfile.h"

class kbpC_TbeamProfile : public fw_PersistentClass<kbpC_TbeamProfile, kbpC_BeamProfile> {
 public:
  using BaseClass = kbpC_BeamProfile;
  using RootClass = kbpC_BeamProfile;
  static constexpr const char* kClassName = "kbpC_TbeamProfile";
  static constexpr const char* kScriptName = "TProfile";
  static constexpr unsigned TypeId() { return fw_TypeId(612, 10); }

  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = kbpC_TbeamProfile;
    return std::tuple{
        fw_Field{"b", 0, "b", &C::b},
        fw_Field{"h", 1, "h", &C::h},
        fw_Field{"l", 2, "l", &C::l},
        fw_Field{"tf", 3, "tf", &C::tf},
        fw_Field{"tw", 4, "tw", &C::tw},
    };
  }

  kbpC_TbeamProfile() = default;
  explicit kbpC_TbeamProfile(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  double GetB() const { return b; }
  void SetB(double v) { b = v; }
  double GetH() const { return h; }
  void SetH(double v) { h = v; }
  double GetL() const { return l; }
  void SetL(double v) { l = v; }
  double GetTf() const { return tf; }
  void SetTf(double v) { tf = v; }
  double GetTw() const { return tw; }
  void SetTw(double v) { tw = v; }

 private:
  double b = 0.1;
  double h = 0.1;
  double l = 0.05;
  double tf = 0.01;
  double tw = 0.01;
};

extern template class fw_PersistentClass<kbpC_TbeamProfile, kbpC_BeamProfile>;
