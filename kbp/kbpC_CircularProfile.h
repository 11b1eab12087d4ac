#pragma once
// A solid circle of radius r.
#include "kbp/kbpC_BeamProfile.h"

class kbpC_CircularProfile : public kbpC_BeamProfile {
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
  void DBWrite(const cls_WriteVisitor& w) const override;
  kbpC_CircularProfile* Copy() const override;
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }
  static void InitializeMetadata(cls_ClassRegistrar& registrar);
  static void CowDtor(void* p);

  bool operator==(const kbpC_CircularProfile& o) const;
  bool operator!=(const kbpC_CircularProfile& o) const { return !(*this == o); }

  double GetR() const { return r; }
  void SetR(double v) { r = v; }

 protected:
  bool SameAs(const kbpC_BeamProfile& o) const override;

 private:
  double r = 0.05;
};
