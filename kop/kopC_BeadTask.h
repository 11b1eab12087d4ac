#pragma once
// A bead optimization task: shell nodes move along their normals to form stiffening beads.
#include <cstdint>
#include <tuple>

#include "kop/kopC_OrimTask.h"
#include "kop/kopC_Enums.h"
#include "platform/model/rgnC_Region.h"
#include "platform/base/cow_List.h"
#include "platform/base/cow_String.h"
#include "platform/base/omu_PrimEnum.h"

class kopC_BeadTask : public kopC_OrimTask {
 public:
  enum class UpdateStrategyEnm : std::int32_t { NORMAL = 0, CONSERVATIVE = 1, AGGRESSIVE = 2 };
  enum class UpdateBasisEnm : std::int32_t { EVERY_DESIGN_CYCLE = 0, CONSTANT = 1 };
  static constexpr omu_EnumLiteral kUpdateStrategyLiterals[] = {{"NORMAL", 0}, {"CONSERVATIVE", 1}, {"AGGRESSIVE", 2}, {nullptr, 0}};
  static constexpr omu_EnumLiteral kUpdateBasisLiterals[] = {{"EVERY_DESIGN_CYCLE", 0}, {"CONSTANT", 1}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(UpdateStrategyEnm) { return kUpdateStrategyLiterals; }
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(UpdateBasisEnm) { return kUpdateBasisLiterals; }
  using BaseClass = kopC_OrimTask;
  using RootClass = kopC_BaseOptimization;
  static constexpr const char* kClassName = "kopC_BeadTask";
  static constexpr const char* kScriptName = "BeadTask";
  static constexpr int kVersion = 2204;
  static constexpr unsigned TypeId() { return fw_TypeId(932, 120); }
  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = kopC_BeadTask;
    return std::tuple_cat(kopC_OrimTask::OrimTaskFields(), std::tuple{
        fw_Field{"frozenBoundaryConditionRegion", 9, "frozenBoundaryConditionRegion", &C::frozenBoundaryConditionRegion},
        fw_Field{"nodeUpdateStrategy", 10, "nodeUpdateStrategy", &C::nodeUpdateStrategy},
        fw_Field{"nodalMoveLimit", 11, "nodalMoveLimit", &C::nodalMoveLimit},
        fw_Field{"numTrackedModes", 12, "numTrackedModes", &C::numTrackedModes},
        fw_Field{"modeTrackingRegion", 13, "modeTrackingRegion", &C::modeTrackingRegion},
        fw_Field{"updateNodalNormals", 14, "updateNodalNormals", &C::updateNodalNormals},
        fw_Field{"flipNormalDir", 15, "flipNormalDir", &C::flipNormalDir},
        fw_Field{"beadWidth", 16, "beadWidth", &C::beadWidth},
        fw_Field{"beadMinStress", 17, "minStress", &C::beadMinStress},
        fw_Field{"beadMaxMembrane", 18, "maxMembraneStress", &C::beadMaxMembrane},
        fw_Field{"curveSmooth", 19, "curveSmooth", &C::curveSmooth},
        fw_Field{"nodeSmooth", 20, "nodeSmooth", &C::nodeSmooth},
        fw_Field{"beadIter", 21, "beadIter", &C::beadIter},
        fw_Field{"beadPerturbation", 22, "beadPerturbation", &C::beadPerturbation},
        fw_Field{"filterRadius", 23, "filterRadius", &C::filterRadius},
        fw_Field{"onlyDesignNodes", 24, "isSensCalcOnlyOnDesignNodes", &C::onlyDesignNodes},
        fw_Field{"areBCRegionsFrozen", 25, "areBCRegionsFrozen", &C::areBCRegionsFrozen},
        fw_Field{"updateShapeBasisVectors", 26, "updateShapeBasisVectors", &C::updateShapeBasisVectors},
    });
  }

  kopC_BeadTask() = default;
  explicit kopC_BeadTask(const cls_ReadVisitor& reader);
  void DBWrite(const cls_WriteVisitor& w) const override;
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }
  static void InitializeMetadata(cls_ClassRegistrar& registrar);
  static void CowDtor(void* p);
  bool operator==(const kopC_BeadTask& o) const;
  bool operator!=(const kopC_BeadTask& o) const { return !(*this == o); }

  const rgnC_Region& GetFrozenBoundaryConditionRegion() const { return frozenBoundaryConditionRegion; }
  void SetFrozenBoundaryConditionRegion(const rgnC_Region& v) { frozenBoundaryConditionRegion = v; }
  UpdateStrategyEnm GetNodeUpdateStrategy() const { return nodeUpdateStrategy; }
  void SetNodeUpdateStrategy(UpdateStrategyEnm v) { nodeUpdateStrategy = v; }
  double GetNodalMoveLimit() const { return nodalMoveLimit; }
  void SetNodalMoveLimit(double v) { nodalMoveLimit = v; }
  std::int32_t GetNumTrackedModes() const { return numTrackedModes; }
  void SetNumTrackedModes(std::int32_t v) { numTrackedModes = v; }
  const rgnC_Region& GetModeTrackingRegion() const { return modeTrackingRegion; }
  void SetModeTrackingRegion(const rgnC_Region& v) { modeTrackingRegion = v; }
  bool GetUpdateNodalNormals() const { return updateNodalNormals; }
  void SetUpdateNodalNormals(bool v) { updateNodalNormals = v; }
  bool GetFlipNormalDir() const { return flipNormalDir; }
  void SetFlipNormalDir(bool v) { flipNormalDir = v; }
  double GetBeadWidth() const { return beadWidth; }
  void SetBeadWidth(double v) { beadWidth = v; }
  double GetBeadMinStress() const { return beadMinStress; }
  void SetBeadMinStress(double v) { beadMinStress = v; }
  double GetBeadMaxMembrane() const { return beadMaxMembrane; }
  void SetBeadMaxMembrane(double v) { beadMaxMembrane = v; }
  double GetCurveSmooth() const { return curveSmooth; }
  void SetCurveSmooth(double v) { curveSmooth = v; }
  double GetNodeSmooth() const { return nodeSmooth; }
  void SetNodeSmooth(double v) { nodeSmooth = v; }
  std::int32_t GetBeadIter() const { return beadIter; }
  void SetBeadIter(std::int32_t v) { beadIter = v; }
  double GetBeadPerturbation() const { return beadPerturbation; }
  void SetBeadPerturbation(double v) { beadPerturbation = v; }
  double GetFilterRadius() const { return filterRadius; }
  void SetFilterRadius(double v) { filterRadius = v; }
  bool GetOnlyDesignNodes() const { return onlyDesignNodes; }
  void SetOnlyDesignNodes(bool v) { onlyDesignNodes = v; }
  bool GetAreBCRegionsFrozen() const { return areBCRegionsFrozen; }
  void SetAreBCRegionsFrozen(bool v) { areBCRegionsFrozen = v; }
  UpdateBasisEnm GetUpdateShapeBasisVectors() const { return updateShapeBasisVectors; }
  void SetUpdateShapeBasisVectors(UpdateBasisEnm v) { updateShapeBasisVectors = v; }

 protected:
  bool SameAs(const kopC_BaseOptimization& o) const override;

 private:
  rgnC_Region frozenBoundaryConditionRegion;
  UpdateStrategyEnm nodeUpdateStrategy = UpdateStrategyEnm::NORMAL;
  double nodalMoveLimit = 0.1;
  std::int32_t numTrackedModes = 0;
  rgnC_Region modeTrackingRegion;
  bool updateNodalNormals = true;
  bool flipNormalDir = false;
  double beadWidth = 1.0;
  double beadMinStress = 0.0;
  double beadMaxMembrane = 0.0;
  double curveSmooth = 5.0;
  double nodeSmooth = 5.0;
  std::int32_t beadIter = 1;
  double beadPerturbation = 0.5;
  double filterRadius = kopC_kUnset;
  bool onlyDesignNodes = false;
  bool areBCRegionsFrozen = false;
  UpdateBasisEnm updateShapeBasisVectors = UpdateBasisEnm::EVERY_DESIGN_CYCLE;
};
