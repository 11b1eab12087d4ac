#pragma once
// A sizing optimization task: the thicknesses of shell elements change.
#include <cstdint>
#include <tuple>
#include <vector>

#include "kop/kopC_OrimTask.h"
#include "kop/kopC_Enums.h"
#include "platform/model/rgnC_Region.h"
#include "platform/base/cow_List.h"
#include "platform/base/cow_String.h"
#include "platform/base/omu_PrimEnum.h"

struct cls_ScriptField;

class kopC_SizingTask : public kopC_OrimTask {
 public:
  enum class UpdateStrategyEnm : std::int32_t { NORMAL = 0, CONSERVATIVE = 1, AGGRESSIVE = 2 };
  static constexpr omu_EnumLiteral kUpdateStrategyLiterals[] = {{"NORMAL", 0}, {"CONSERVATIVE", 1}, {"AGGRESSIVE", 2}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(UpdateStrategyEnm) { return kUpdateStrategyLiterals; }
  using BaseClass = kopC_OrimTask;
  using RootClass = kopC_BaseOptimization;
  static constexpr const char* kClassName = "kopC_SizingTask";
  static constexpr const char* kScriptName = "SizingTask";
  static constexpr int kVersion = 2204;
  static constexpr unsigned TypeId() { return fw_TypeId(932, 105); }
  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = kopC_SizingTask;
    return std::tuple_cat(kopC_OrimTask::OrimTaskFields(), std::tuple{
        fw_Field{"freezeLoadRegions", 9, "freezeLoadRegions", &C::freezeLoadRegions},
        fw_Field{"freezeBoundaryConditionRegions", 10, "freezeBoundaryConditionRegions", &C::freezeBoundaryConditionRegions},
        fw_Field{"thicknessUpdateStrategy", 11, "thicknessUpdateStrategy", &C::thicknessUpdateStrategy},
        fw_Field{"thicknessMoveLimit", 12, "thicknessMoveLimit", &C::thicknessMoveLimit},
        fw_Field{"filterRadius", 13, "filterRadius", &C::filterRadius},
        fw_Field{"numFulfilledStopCriteria", 14, "numFulfilledStopCriteria", &C::numFulfilledStopCriteria},
        fw_Field{"objectiveFunctionDeltaStopCriteria", 15, "objectiveFunctionDeltaStopCriteria", &C::objectiveFunctionDeltaStopCriteria},
        fw_Field{"elementThicknessDeltaStopCriteria", 16, "elementThicknessDeltaStopCriteria", &C::elementThicknessDeltaStopCriteria},
        fw_Field{"stopCriteriaIteration", 17, "stopCriteriaDesignCycle", &C::stopCriteriaIteration},
        fw_Field{"modeTrackingRegion", 18, "modeTrackingRegion", &C::modeTrackingRegion},
        fw_Field{"numTrackedModes", 19, "numTrackedModes", &C::numTrackedModes},
    });
  }

  kopC_SizingTask() = default;
  explicit kopC_SizingTask(const cls_ReadVisitor& reader);
  void DBWrite(const cls_WriteVisitor& w) const override;
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }
  static void InitializeMetadata(cls_ClassRegistrar& registrar);
  // The criteria design cycle is stored as stopCriteriaIteration: scripts reach it by that name
  // too, beside stopCriteriaDesignCycle.
  static std::vector<cls_ScriptField> ScriptFace(std::vector<cls_ScriptField> stored);
  static void CowDtor(void* p);
  bool operator==(const kopC_SizingTask& o) const;
  bool operator!=(const kopC_SizingTask& o) const { return !(*this == o); }

  bool GetFreezeLoadRegions() const { return freezeLoadRegions; }
  void SetFreezeLoadRegions(bool v) { freezeLoadRegions = v; }
  bool GetFreezeBoundaryConditionRegions() const { return freezeBoundaryConditionRegions; }
  void SetFreezeBoundaryConditionRegions(bool v) { freezeBoundaryConditionRegions = v; }
  UpdateStrategyEnm GetThicknessUpdateStrategy() const { return thicknessUpdateStrategy; }
  void SetThicknessUpdateStrategy(UpdateStrategyEnm v) { thicknessUpdateStrategy = v; }
  double GetThicknessMoveLimit() const { return thicknessMoveLimit; }
  void SetThicknessMoveLimit(double v) { thicknessMoveLimit = v; }
  double GetFilterRadius() const { return filterRadius; }
  void SetFilterRadius(double v) { filterRadius = v; }
  std::int32_t GetNumFulfilledStopCriteria() const { return numFulfilledStopCriteria; }
  void SetNumFulfilledStopCriteria(std::int32_t v) { numFulfilledStopCriteria = v; }
  double GetObjectiveFunctionDeltaStopCriteria() const { return objectiveFunctionDeltaStopCriteria; }
  void SetObjectiveFunctionDeltaStopCriteria(double v) { objectiveFunctionDeltaStopCriteria = v; }
  double GetElementThicknessDeltaStopCriteria() const { return elementThicknessDeltaStopCriteria; }
  void SetElementThicknessDeltaStopCriteria(double v) { elementThicknessDeltaStopCriteria = v; }
  std::int32_t GetStopCriteriaIteration() const { return stopCriteriaIteration; }
  void SetStopCriteriaIteration(std::int32_t v) { stopCriteriaIteration = v; }
  const rgnC_Region& GetModeTrackingRegion() const { return modeTrackingRegion; }
  void SetModeTrackingRegion(const rgnC_Region& v) { modeTrackingRegion = v; }
  std::int32_t GetNumTrackedModes() const { return numTrackedModes; }
  void SetNumTrackedModes(std::int32_t v) { numTrackedModes = v; }

 protected:
  bool SameAs(const kopC_BaseOptimization& o) const override;

 private:
  bool freezeLoadRegions = false;
  bool freezeBoundaryConditionRegions = false;
  UpdateStrategyEnm thicknessUpdateStrategy = UpdateStrategyEnm::NORMAL;
  double thicknessMoveLimit = 0.25;
  double filterRadius = kopC_kUnset;
  std::int32_t numFulfilledStopCriteria = 2;
  double objectiveFunctionDeltaStopCriteria = 0.001;
  double elementThicknessDeltaStopCriteria = 0.005;
  std::int32_t stopCriteriaIteration = 4;
  rgnC_Region modeTrackingRegion;
  std::int32_t numTrackedModes = 0;
};
