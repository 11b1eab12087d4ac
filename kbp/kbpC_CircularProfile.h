#pragma once
// A solid circle of radius r.
#include "framework/fw_PersistentClass.h"
#include "kbp/kbpC_BeamProfile.h"

class kbpC_CircularProfile : public fw_PersistentClass<kbpC_CircularProfile, kbpC_BeamProfile> {
 public:
  using BaseClass = kbpC_BeamProfile;
  using RootClass = kbpC_BeamProfile;
  static constexpr const char* kClassName = "kbpC_CircularProfile";
  static constexpr const char* kScriptName = "CircularProfile";
  static constexpr unsigned TypeId() { return fw_TypeId(612, 4); }

  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = kbpC_CircularProfile;
    return std::tuple{
        fw_Field{"r", 0, "r", &C::r},
    };
  }

  kbpC_CircularProfile() = default;
  explicit kbpC_CircularProfile(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  double GetR() const { return r; }
  void SetR(double v) { r = v; }

 private:
  double r = 0.05;
};

extern template class fw_PersistentClass<kbpC_CircularProfile, kbpC_BeamProfile>;
