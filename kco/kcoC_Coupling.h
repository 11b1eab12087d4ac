#pragma once
// A coupling of a reference point to a surface: kinematic, distributing, structural or uniform.
// The influence radius is "WHOLE_SURFACE" or a distance.
#include <cstdint>

#include "framework/fw_PersistentClass.h"
#include "kco/kcoC_Constraint.h"
#include "framework/fw_OrLiteral.h"
#include "kco/kcoC_Enums.h"
#include "platform/base/cow_String.h"
#include "platform/model/rgnC_Region.h"

class kcoC_Coupling : public fw_PersistentClass<kcoC_Coupling, kcoC_Constraint> {
 public:
  using BaseClass = kcoC_Constraint;
  using RootClass = kcoC_Constraint;
  static constexpr const char* kClassName = "kcoC_Coupling";
  static constexpr const char* kScriptName = "Coupling";
  static constexpr unsigned TypeId() { return fw_TypeId(720, 3); }

  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = kcoC_Coupling;
    return std::tuple{
        fw_Field{"suppress", 0, "suppress", &C::suppress},
        fw_Field{"surface", 1, "surface", &C::surface},
        fw_Field{"refPoint", 2, "refPoint", &C::refPoint},
        fw_Field{"influenceRadius", 3, "influenceRadius", &C::influenceRadius},
        fw_Field{"couplingType", 4, "couplingType", &C::couplingType},
        fw_Field{"csys", 5, "localCsys", &C::csys},
        fw_Field{"u1", 6, "u1", &C::u1},
        fw_Field{"u2", 7, "u2", &C::u2},
        fw_Field{"u3", 8, "u3", &C::u3},
        fw_Field{"ur1", 9, "ur1", &C::ur1},
        fw_Field{"ur2", 10, "ur2", &C::ur2},
        fw_Field{"ur3", 11, "ur3", &C::ur3},
        fw_Field{"weightingMethod", 12, "weightingMethod", &C::weightingMethod},
        fw_Field{"couplingNodes", 13, "couplingNodes", &C::couplingNodes},
        fw_Field{"adjust", 14, "adjust", &C::adjust},
        fw_Field{"alpha", 15, "alpha", &C::alpha},
        fw_Field{"rotationalCouplingType", 16, "rotationalCouplingType", &C::rotationalCouplingType},
        fw_Field{"uniformConstraint", 17, "uniformConstraint", &C::uniformConstraint},
        fw_Field{"temperatureDOFType", 18, "temperatureDOFType", &C::temperatureDOFType},
    };
  }

  kcoC_Coupling() = default;
  explicit kcoC_Coupling(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  bool IsWholeSurface() const { return influenceRadius.IsLiteral(); }
  void SetInfluenceRadius(kcoC_InfluenceRadiusEnm v) { influenceRadius = v; }
  const rgnC_Region& GetSurface() const { return surface; }
  void SetSurface(const rgnC_Region& v) { surface = v; }
  const rgnC_Region& GetRefPoint() const { return refPoint; }
  void SetRefPoint(const rgnC_Region& v) { refPoint = v; }
  double GetInfluenceRadius() const { return influenceRadius.value; }
  void SetInfluenceRadius(double v) { influenceRadius = v; }
  kcoC_CouplingTypeEnm GetCouplingType() const { return couplingType; }
  void SetCouplingType(kcoC_CouplingTypeEnm v) { couplingType = v; }
  const cow_String& GetCsys() const { return csys; }
  void SetCsys(const cow_String& v) { csys = v; }
  bool GetU1() const { return u1; }
  void SetU1(bool v) { u1 = v; }
  bool GetU2() const { return u2; }
  void SetU2(bool v) { u2 = v; }
  bool GetU3() const { return u3; }
  void SetU3(bool v) { u3 = v; }
  bool GetUr1() const { return ur1; }
  void SetUr1(bool v) { ur1 = v; }
  bool GetUr2() const { return ur2; }
  void SetUr2(bool v) { ur2 = v; }
  bool GetUr3() const { return ur3; }
  void SetUr3(bool v) { ur3 = v; }
  kcoC_WeightingMethodEnm GetWeightingMethod() const { return weightingMethod; }
  void SetWeightingMethod(kcoC_WeightingMethodEnm v) { weightingMethod = v; }
  const rgnC_Region& GetCouplingNodes() const { return couplingNodes; }
  void SetCouplingNodes(const rgnC_Region& v) { couplingNodes = v; }
  bool GetAdjust() const { return adjust; }
  void SetAdjust(bool v) { adjust = v; }
  double GetAlpha() const { return alpha; }
  void SetAlpha(double v) { alpha = v; }
  kcoC_RotationalCouplingTypeEnm GetRotationalCouplingType() const { return rotationalCouplingType; }
  void SetRotationalCouplingType(kcoC_RotationalCouplingTypeEnm v) { rotationalCouplingType = v; }
  kcoC_UniformConstraintEnm GetUniformConstraint() const { return uniformConstraint; }
  void SetUniformConstraint(kcoC_UniformConstraintEnm v) { uniformConstraint = v; }
  std::int32_t GetTemperatureDOFType() const { return temperatureDOFType; }
  void SetTemperatureDOFType(std::int32_t v) { temperatureDOFType = v; }

 private:
  rgnC_Region surface;
  rgnC_Region refPoint;
  fw_OrLiteral<double, kcoC_InfluenceRadiusEnm> influenceRadius;  // "WHOLE_SURFACE" (the default) or a distance
  kcoC_CouplingTypeEnm couplingType = kcoC_CouplingTypeEnm::KINEMATIC;
  cow_String csys;  // the name of a local coordinate system; empty for the global one
  bool u1 = true;
  bool u2 = true;
  bool u3 = true;
  bool ur1 = true;
  bool ur2 = true;
  bool ur3 = true;
  kcoC_WeightingMethodEnm weightingMethod = kcoC_WeightingMethodEnm::UNIFORM;
  rgnC_Region couplingNodes;  // the coupled nodes, when not the whole surface
  bool adjust = true;
  double alpha = 0.0;
  kcoC_RotationalCouplingTypeEnm rotationalCouplingType = kcoC_RotationalCouplingTypeEnm::ROTATIONAL_STRUCTURAL;
  kcoC_UniformConstraintEnm uniformConstraint = kcoC_UniformConstraintEnm::NONE;
  std::int32_t temperatureDOFType = 0;  // the temperature degree of freedom coupled; 0 for none
};

extern template class fw_PersistentClass<kcoC_Coupling, kcoC_Constraint>;
