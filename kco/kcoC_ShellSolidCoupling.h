#pragma once
// A coupling of a shell edge to a solid face.
#include <cstdint>

#include "framework/fw_PersistentClass.h"
#include "kco/kcoC_Constraint.h"
#include "kco/kcoC_Enums.h"
#include "platform/model/rgnC_Region.h"

class kcoC_ShellSolidCoupling : public fw_PersistentClass<kcoC_ShellSolidCoupling, kcoC_Constraint> {
 public:
  using BaseClass = kcoC_Constraint;
  using RootClass = kcoC_Constraint;
  static constexpr const char* kClassName = "kcoC_ShellSolidCoupling";
  static constexpr const char* kScriptName = "ShellSolidCoupling";
  static constexpr unsigned TypeId() { return fw_TypeId(720, 9); }

  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = kcoC_ShellSolidCoupling;
    return std::tuple{
        fw_Field{"suppress", 0, "suppress", &C::suppress},
        fw_Field{"shellEdge", 1, "shellEdge", &C::shellEdge},
        fw_Field{"solidFace", 2, "solidFace", &C::solidFace},
        fw_Field{"positionToleranceMethod", 3, "positionToleranceMethod", &C::positionToleranceMethod},
        fw_Field{"positionTolerance", 4, "positionTolerance", &C::positionTolerance},
        fw_Field{"influenceDistanceMethod", 5, "influenceDistanceMethod", &C::influenceDistanceMethod},
        fw_Field{"influenceDistance", 6, "influenceDistance", &C::influenceDistance},
    };
  }

  kcoC_ShellSolidCoupling() = default;
  explicit kcoC_ShellSolidCoupling(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  const rgnC_Region& GetShellEdge() const { return shellEdge; }
  void SetShellEdge(const rgnC_Region& v) { shellEdge = v; }
  const rgnC_Region& GetSolidFace() const { return solidFace; }
  void SetSolidFace(const rgnC_Region& v) { solidFace = v; }
  kcoC_PosToleranceEnm GetPositionToleranceMethod() const { return positionToleranceMethod; }
  void SetPositionToleranceMethod(kcoC_PosToleranceEnm v) { positionToleranceMethod = v; }
  double GetPositionTolerance() const { return positionTolerance; }
  void SetPositionTolerance(double v) { positionTolerance = v; }
  kcoC_PosToleranceEnm GetInfluenceDistanceMethod() const { return influenceDistanceMethod; }
  void SetInfluenceDistanceMethod(kcoC_PosToleranceEnm v) { influenceDistanceMethod = v; }
  double GetInfluenceDistance() const { return influenceDistance; }
  void SetInfluenceDistance(double v) { influenceDistance = v; }

 private:
  rgnC_Region shellEdge;
  rgnC_Region solidFace;
  kcoC_PosToleranceEnm positionToleranceMethod = kcoC_PosToleranceEnm::COMPUTED;
  double positionTolerance = 0.0;
  kcoC_PosToleranceEnm influenceDistanceMethod = kcoC_PosToleranceEnm::COMPUTED;
  double influenceDistance = 0.0;
};

extern template class fw_PersistentClass<kcoC_ShellSolidCoupling, kcoC_Constraint>;
