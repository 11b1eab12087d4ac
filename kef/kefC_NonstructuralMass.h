#pragma once
// Mass that adds to a region without stiffness: a total or a mass per volume, area or length,
// spread by mass or by volume.
#include <cstdint>

#include "framework/fw_PersistentClass.h"
#include "kef/kefC_Inertia.h"
#include "kef/kefC_Enums.h"
#include "platform/model/rgnC_Region.h"

class kefC_NonstructuralMass : public fw_PersistentClass<kefC_NonstructuralMass, kefC_Inertia> {
 public:
  using BaseClass = kefC_Inertia;
  using RootClass = kefC_Inertia;
  static constexpr const char* kClassName = "kefC_NonstructuralMass";
  static constexpr const char* kScriptName = "NonstructuralMass";
  static constexpr unsigned TypeId() { return fw_TypeId(844, 17); }

  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = kefC_NonstructuralMass;
    return std::tuple{
        fw_Field{"region", 1, "region", &C::region},
        fw_Field{"units", 2, "units", &C::units},
        fw_Field{"magnitude", 3, "magnitude", &C::magnitude},
        fw_Field{"distribution", 4, "distribution", &C::distribution},
        fw_Field{"suppress", 0, "suppress", &C::suppress},
    };
  }

  kefC_NonstructuralMass() = default;
  explicit kefC_NonstructuralMass(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  const rgnC_Region& GetRegion() const { return region; }
  void SetRegion(const rgnC_Region& v) { AssertEditable(); region = v; }
  kefC_UnitsEnum GetUnits() const { return units; }
  void SetUnits(kefC_UnitsEnum v) { AssertEditable(); units = v; }
  double GetMagnitude() const { return magnitude; }
  void SetMagnitude(double v) { AssertEditable(); magnitude = v; }
  kefC_DistributionEnum GetDistribution() const { return distribution; }
  void SetDistribution(kefC_DistributionEnum v) { AssertEditable(); distribution = v; }

 private:
  rgnC_Region region;
  kefC_UnitsEnum units = kefC_UnitsEnum::TOTAL_MASS;
  double magnitude = 0.0;
  kefC_DistributionEnum distribution = kefC_DistributionEnum::MASS_PROPORTIONAL;
};

extern template class fw_PersistentClass<kefC_NonstructuralMass, kefC_Inertia>;
