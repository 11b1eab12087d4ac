#pragma once
// A region embedded in a host region: the embedded nodes follow the host elements they lie in,
// found within the tolerances.
#include <cstdint>

#include "framework/fw_PersistentClass.h"
#include "kco/kcoC_Constraint.h"
#include "kco/kcoC_Enums.h"
#include "platform/model/rgnC_Region.h"

class kcoC_EmbeddedRegion : public fw_PersistentClass<kcoC_EmbeddedRegion, kcoC_Constraint> {
 public:
  using BaseClass = kcoC_Constraint;
  using RootClass = kcoC_Constraint;
  static constexpr const char* kClassName = "kcoC_EmbeddedRegion";
  static constexpr const char* kScriptName = "EmbeddedRegion";
  static constexpr unsigned TypeId() { return fw_TypeId(720, 8); }

  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = kcoC_EmbeddedRegion;
    return std::tuple{
        fw_Field{"suppress", 0, "suppress", &C::suppress},
        fw_Field{"embeddedRegion", 1, "embeddedRegion", &C::embeddedRegion},
        fw_Field{"hostRegion", 2, "hostRegion", &C::hostRegion},
        fw_Field{"toleranceMethod", 3, "toleranceMethod", &C::toleranceMethod},
        fw_Field{"absoluteTolerance", 4, "absoluteTolerance", &C::absoluteTolerance},
        fw_Field{"fractionalTolerance", 5, "fractionalTolerance", &C::fractionalTolerance},
        fw_Field{"weightFactorTolerance", 6, "weightFactorTolerance", &C::weightFactorTolerance},
    };
  }

  kcoC_EmbeddedRegion() = default;
  explicit kcoC_EmbeddedRegion(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  const rgnC_Region& GetEmbeddedRegion() const { return embeddedRegion; }
  void SetEmbeddedRegion(const rgnC_Region& v) { embeddedRegion = v; }
  const rgnC_Region& GetHostRegion() const { return hostRegion; }
  void SetHostRegion(const rgnC_Region& v) { hostRegion = v; }
  kcoC_EmbeddedToleranceEnm GetToleranceMethod() const { return toleranceMethod; }
  void SetToleranceMethod(kcoC_EmbeddedToleranceEnm v) { toleranceMethod = v; }
  double GetAbsoluteTolerance() const { return absoluteTolerance; }
  void SetAbsoluteTolerance(double v) { absoluteTolerance = v; }
  double GetFractionalTolerance() const { return fractionalTolerance; }
  void SetFractionalTolerance(double v) { fractionalTolerance = v; }
  double GetWeightFactorTolerance() const { return weightFactorTolerance; }
  void SetWeightFactorTolerance(double v) { weightFactorTolerance = v; }

 private:
  rgnC_Region embeddedRegion;
  rgnC_Region hostRegion;  // empty: the whole model
  kcoC_EmbeddedToleranceEnm toleranceMethod = kcoC_EmbeddedToleranceEnm::BOTH;
  double absoluteTolerance = 0.0;
  double fractionalTolerance = 0.05;
  double weightFactorTolerance = 1e-06;
};

extern template class fw_PersistentClass<kcoC_EmbeddedRegion, kcoC_Constraint>;
