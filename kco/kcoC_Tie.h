#pragma once
// A tie between a main surface and a secondary region: the secondary nodes follow the main
// surface. Whether the main region is a surface, the adjusting set valid and rotations allowed
// depend on the model and the analysis; kcoC_AssertInModel judges them (codes 5 to 7).
#include <cstdint>

#include "framework/fw_PersistentClass.h"
#include "kco/kcoC_Constraint.h"
#include "kco/kcoC_Enums.h"
#include "platform/model/rgnC_Region.h"

class kcoC_Tie : public fw_PersistentClass<kcoC_Tie, kcoC_Constraint> {
 public:
  using BaseClass = kcoC_Constraint;
  using RootClass = kcoC_Constraint;
  static constexpr const char* kClassName = "kcoC_Tie";
  static constexpr const char* kScriptName = "Tie";
  static constexpr unsigned TypeId() { return fw_TypeId(720, 2); }

  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = kcoC_Tie;
    return std::tuple{
        fw_Field{"suppress", 0, "suppress", &C::suppress},
        fw_Field{"master", 1, "master", &C::master},
        fw_Field{"slave", 2, "slave", &C::slave},
        fw_Field{"adjust", 3, "adjust", &C::adjust},
        fw_Field{"positionTolerance", 4, "positionTolerance", &C::positionTolerance},
        fw_Field{"tieRotations", 5, "tieRotations", &C::tieRotations},
        fw_Field{"positionToleranceMethod", 6, "positionToleranceMethod", &C::positionToleranceMethod},
        fw_Field{"constraintRatioMethod", 7, "constraintRatioMethod", &C::constraintRatioMethod},
        fw_Field{"constraintRatio", 8, "constraintRatio", &C::constraintRatio},
        fw_Field{"constraintEnforcement", 9, "constraintEnforcement", &C::constraintEnforcement},
        fw_Field{"thickness", 10, "thickness", &C::thickness},
        fw_Field{"tiedNset", 11, "tiedNset", &C::tiedNset},
        fw_Field{"cyclicSymmetry", 12, "cyclicSymmetry", &C::cyclicSymmetry},
        fw_Field{"tieTemperature", 13, "tieTemperature", &C::tieTemperature},
        fw_Field{"tiePore", 14, "tiePore", &C::tiePore},
        fw_Field{"electricPotential", 15, "electricPotential", &C::electricPotential},
        fw_Field{"fluidElectricPotential", 16, "fluidElectricPotential", &C::fluidElectricPotential},
        fw_Field{"ionConcentration", 17, "ionConcentration", &C::ionConcentration},
    };
  }

  kcoC_Tie() = default;
  explicit kcoC_Tie(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  const rgnC_Region& GetMaster() const { return master; }
  void SetMaster(const rgnC_Region& v) { master = v; }
  const rgnC_Region& GetSlave() const { return slave; }
  void SetSlave(const rgnC_Region& v) { slave = v; }
  bool GetAdjust() const { return adjust; }
  void SetAdjust(bool v) { adjust = v; }
  double GetPositionTolerance() const { return positionTolerance; }
  void SetPositionTolerance(double v) { positionTolerance = v; }
  bool GetTieRotations() const { return tieRotations; }
  void SetTieRotations(bool v) { tieRotations = v; }
  kcoC_PosToleranceEnm GetPositionToleranceMethod() const { return positionToleranceMethod; }
  void SetPositionToleranceMethod(kcoC_PosToleranceEnm v) { positionToleranceMethod = v; }
  kcoC_DefaultOrValueEnm GetConstraintRatioMethod() const { return constraintRatioMethod; }
  void SetConstraintRatioMethod(kcoC_DefaultOrValueEnm v) { constraintRatioMethod = v; }
  double GetConstraintRatio() const { return constraintRatio; }
  void SetConstraintRatio(double v) { constraintRatio = v; }
  kcoC_TieConstraintEnforcementEnm GetConstraintEnforcement() const { return constraintEnforcement; }
  void SetConstraintEnforcement(kcoC_TieConstraintEnforcementEnm v) { constraintEnforcement = v; }
  bool GetThickness() const { return thickness; }
  void SetThickness(bool v) { thickness = v; }
  const rgnC_Region& GetTiedNset() const { return tiedNset; }
  void SetTiedNset(const rgnC_Region& v) { tiedNset = v; }
  bool GetCyclicSymmetry() const { return cyclicSymmetry; }
  void SetCyclicSymmetry(bool v) { cyclicSymmetry = v; }
  bool GetTieTemperature() const { return tieTemperature; }
  void SetTieTemperature(bool v) { tieTemperature = v; }
  bool GetTiePore() const { return tiePore; }
  void SetTiePore(bool v) { tiePore = v; }
  bool GetElectricPotential() const { return electricPotential; }
  void SetElectricPotential(bool v) { electricPotential = v; }
  bool GetFluidElectricPotential() const { return fluidElectricPotential; }
  void SetFluidElectricPotential(bool v) { fluidElectricPotential = v; }
  bool GetIonConcentration() const { return ionConcentration; }
  void SetIonConcentration(bool v) { ionConcentration = v; }

 private:
  rgnC_Region master;  // the main surface
  rgnC_Region slave;  // the secondary region
  bool adjust = true;
  double positionTolerance = 0.0;
  bool tieRotations = true;
  kcoC_PosToleranceEnm positionToleranceMethod = kcoC_PosToleranceEnm::COMPUTED;
  kcoC_DefaultOrValueEnm constraintRatioMethod = kcoC_DefaultOrValueEnm::DEFAULT;
  double constraintRatio = 0.0;
  kcoC_TieConstraintEnforcementEnm constraintEnforcement = kcoC_TieConstraintEnforcementEnm::SOLVER_DEFAULT;
  bool thickness = true;
  rgnC_Region tiedNset;  // the secondary nodes to tie, when not all
  bool cyclicSymmetry = false;
  bool tieTemperature = false;
  bool tiePore = false;
  bool electricPotential = false;
  bool fluidElectricPotential = false;
  bool ionConcentration = false;
};

extern template class fw_PersistentClass<kcoC_Tie, kcoC_Constraint>;
