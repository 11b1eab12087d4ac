#pragma once
// An adaptive mesh control: how an analysis smooths and remaps an adaptive mesh.
#include <cstdint>

#include "framework/fw_PersistentClass.h"
#include "framework/fw_Field.h"
#include "platform/base/bas_Alloc.h"
#include "platform/persist/cls_Uid.h"
#include "platform/base/omu_PrimEnum.h"

class cls_ReadVisitor;
class cls_WriteVisitor;
class cls_ClassRegistrar;

class kadC_AdptMeshCtrl : public fw_PersistentClass<kadC_AdptMeshCtrl, mem_Allocated> {
 public:
  enum class AdvectionEnm : std::int32_t { FIRST_ORDER_ADVECTION = 0, SECOND_ORDER_ADVECTION = 1 };
  enum class SmoothingAlgorithmEnm : std::int32_t { STANDARD = 0, GEOMETRY_ENHANCED = 1, ANALYSIS_PRODUCT_DEFAULT = 2 };
  enum class SmoothingPriorityEnm : std::int32_t { UNIFORM = 0, GRADED = 1 };
  enum class MomentumAdvectionEnm : std::int32_t { ELEMENT_CENTER_PROJECTION = 0, HALF_INDEX_SHIFT = 1 };
  enum class RemeshPredictorEnm : std::int32_t { CURRENT = 0, PREVIOUS = 1 };
  enum class AutomaticEnm : std::int32_t { AUTOMATIC = 0, FACTOR = 1 };

  static constexpr omu_EnumLiteral kAdvectionLiterals[] = {
      {"FIRST_ORDER_ADVECTION", 0}, {"SECOND_ORDER_ADVECTION", 1}, {nullptr, 0}};
  static constexpr omu_EnumLiteral kSmoothingAlgorithmLiterals[] = {
      {"STANDARD", 0}, {"GEOMETRY_ENHANCED", 1}, {"ANALYSIS_PRODUCT_DEFAULT", 2}, {nullptr, 0}};
  static constexpr omu_EnumLiteral kSmoothingPriorityLiterals[] = {{"UNIFORM", 0}, {"GRADED", 1}, {nullptr, 0}};
  static constexpr omu_EnumLiteral kMomentumAdvectionLiterals[] = {
      {"ELEMENT_CENTER_PROJECTION", 0}, {"HALF_INDEX_SHIFT", 1}, {nullptr, 0}};
  static constexpr omu_EnumLiteral kRemeshPredictorLiterals[] = {{"CURRENT", 0}, {"PREVIOUS", 1}, {nullptr, 0}};
  static constexpr omu_EnumLiteral kAutomaticLiterals[] = {{"AUTOMATIC", 0}, {"FACTOR", 1}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(AdvectionEnm) { return kAdvectionLiterals; }
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(SmoothingAlgorithmEnm) { return kSmoothingAlgorithmLiterals; }
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(SmoothingPriorityEnm) { return kSmoothingPriorityLiterals; }
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(MomentumAdvectionEnm) { return kMomentumAdvectionLiterals; }
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(RemeshPredictorEnm) { return kRemeshPredictorLiterals; }
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(AutomaticEnm) { return kAutomaticLiterals; }

  static constexpr const char* kClassName = "kadC_AdptMeshCtrl";
  static constexpr const char* kScriptName = "AdaptiveMeshControl";
  static constexpr int kVersion = 860;
  static constexpr unsigned TypeId() { return fw_TypeId(616, 1); }

  // Persistent fields in write order (the field numbers record the order they were added in).
  static constexpr auto Fields() {
    using C = kadC_AdptMeshCtrl;
    return std::tuple{
        fw_Field{"advection", 0, "remapping", &C::advection},
        fw_Field{"smoothingAlgorithm", 1, "smoothingAlgorithm", &C::smoothingAlgorithm},
        fw_Field{"smoothingPriority", 2, "smoothingPriority", &C::smoothingPriority},
        fw_Field{"initialFeatureAngle", 3, "initialFeatureAngle", &C::initialFeatureAngle},
        fw_Field{"transitionFeatureAngle", 4, "transitionFeatureAngle", &C::transitionFeatureAngle},
        fw_Field{"momentumAdvection", 5, "momentumAdvection", &C::momentumAdvection},
        fw_Field{"remeshPredictor", 6, "meshingPredictor", &C::remeshPredictor},
        fw_Field{"curvatureRefinement", 7, "curvatureRefinement", &C::curvatureRefinement},
        fw_Field{"volumetricSmoothingWeight", 8, "volumetricSmoothingWeight", &C::volumetricSmoothingWeight},
        fw_Field{"standardVolumetricSmoothingWeight", 12, "standardVolumetricSmoothingWeight", &C::standardVolumetricSmoothingWeight},
        fw_Field{"laplacianSmoothingWeight", 9, "laplacianSmoothingWeight", &C::laplacianSmoothingWeight},
        fw_Field{"equipotentialSmoothingWeight", 10, "equipotentialSmoothingWeight", &C::equipotentialSmoothingWeight},
        fw_Field{"meshConstraintAngle", 11, "meshConstraintAngle", &C::meshConstraintAngle},
        fw_Field{"originalConfigurationProjectionWeight", 13, "originalConfigurationProjectionWeight", &C::originalConfigurationProjectionWeight},
    };
  }

  kadC_AdptMeshCtrl() = default;
  explicit kadC_AdptMeshCtrl(const cls_ReadVisitor& r);
  virtual ~kadC_AdptMeshCtrl() = default;
  virtual void AssertValid() const;

  const cls_Uid& GetUid() const { return uid; }
  AdvectionEnm GetAdvection() const { return advection; }
  void SetAdvection(AdvectionEnm v) { advection = v; }
  SmoothingAlgorithmEnm GetSmoothingAlgorithm() const { return smoothingAlgorithm; }
  void SetSmoothingAlgorithm(SmoothingAlgorithmEnm v) { smoothingAlgorithm = v; }
  SmoothingPriorityEnm GetSmoothingPriority() const { return smoothingPriority; }
  void SetSmoothingPriority(SmoothingPriorityEnm v) { smoothingPriority = v; }
  double GetInitialFeatureAngle() const { return initialFeatureAngle; }
  void SetInitialFeatureAngle(double v) { initialFeatureAngle = v; }
  double GetTransitionFeatureAngle() const { return transitionFeatureAngle; }
  void SetTransitionFeatureAngle(double v) { transitionFeatureAngle = v; }
  MomentumAdvectionEnm GetMomentumAdvection() const { return momentumAdvection; }
  void SetMomentumAdvection(MomentumAdvectionEnm v) { momentumAdvection = v; }
  RemeshPredictorEnm GetRemeshPredictor() const { return remeshPredictor; }
  void SetRemeshPredictor(RemeshPredictorEnm v) { remeshPredictor = v; }
  double GetCurvatureRefinement() const { return curvatureRefinement; }
  void SetCurvatureRefinement(double v) { curvatureRefinement = v; }
  double GetVolumetricSmoothingWeight() const { return volumetricSmoothingWeight; }
  void SetVolumetricSmoothingWeight(double v) { volumetricSmoothingWeight = v; }
  double GetStandardVolumetricSmoothingWeight() const { return standardVolumetricSmoothingWeight; }
  void SetStandardVolumetricSmoothingWeight(double v) { standardVolumetricSmoothingWeight = v; }
  double GetLaplacianSmoothingWeight() const { return laplacianSmoothingWeight; }
  void SetLaplacianSmoothingWeight(double v) { laplacianSmoothingWeight = v; }
  double GetEquipotentialSmoothingWeight() const { return equipotentialSmoothingWeight; }
  void SetEquipotentialSmoothingWeight(double v) { equipotentialSmoothingWeight = v; }
  double GetOriginalConfigurationProjectionWeight() const { return originalConfigurationProjectionWeight; }
  void SetOriginalConfigurationProjectionWeight(double v) { originalConfigurationProjectionWeight = v; }
  double GetMeshConstraintAngle() const { return meshConstraintAngle; }
  void SetMeshConstraintAngle(double v) { meshConstraintAngle = v; }

 private:
  AdvectionEnm advection = AdvectionEnm::SECOND_ORDER_ADVECTION;
  SmoothingAlgorithmEnm smoothingAlgorithm = SmoothingAlgorithmEnm::ANALYSIS_PRODUCT_DEFAULT;
  SmoothingPriorityEnm smoothingPriority = SmoothingPriorityEnm::UNIFORM;
  double initialFeatureAngle = 30.0;
  double transitionFeatureAngle = 30.0;
  MomentumAdvectionEnm momentumAdvection = MomentumAdvectionEnm::ELEMENT_CENTER_PROJECTION;
  RemeshPredictorEnm remeshPredictor = RemeshPredictorEnm::CURRENT;
  double curvatureRefinement = 1.0;
  double volumetricSmoothingWeight = 1.0;
  double standardVolumetricSmoothingWeight = 0.0;
  double laplacianSmoothingWeight = 0.0;
  double equipotentialSmoothingWeight = 0.0;
  double originalConfigurationProjectionWeight = 1.0;
  double meshConstraintAngle = 60.0;
  cls_Uid uid;
};

extern template class fw_PersistentClass<kadC_AdptMeshCtrl, mem_Allocated>;
