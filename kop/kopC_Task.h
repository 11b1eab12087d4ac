#pragma once
// A task: its region and the six containers of its items.
#include <cstdint>
#include <tuple>

#include "kop/kopC_BaseOptimization.h"
#include "platform/model/rgnC_Region.h"
#include "kop/kopC_ConstraintContainer.h"
#include "kop/kopC_DesignResponseContainer.h"
#include "kop/kopC_GeometricRestrictionContainer.h"
#include "kop/kopC_ObjectiveFunctionContainer.h"
#include "kop/kopC_StopConditionContainer.h"
#include "kop/kopC_VariableContainer.h"

class kopC_Task : public kopC_BaseOptimization {
 public:
  using BaseClass = kopC_BaseOptimization;
  using RootClass = kopC_BaseOptimization;
  static constexpr const char* kClassName = "kopC_Task";
  static constexpr int kVersion = 1554;
  static constexpr unsigned TypeId() { return fw_TypeId(932, 4); }
  // Persistent fields in write order; the kinds write this part's fields first.
  static constexpr auto TaskFields() {
    using C = kopC_Task;
    return std::tuple{
        fw_Field{"suppressed", 0, "suppressed", &C::suppressed},
        fw_Field{"region", 1, "region", &C::region},
        fw_Field{"constraintContainer", 2, "optimizationConstraints", &C::constraintContainer},
        fw_Field{"designResponseContainer", 3, "designResponses", &C::designResponseContainer},
        fw_Field{"geometricRestrictionContainer", 4, "geometricRestrictions", &C::geometricRestrictionContainer},
        fw_Field{"objectiveFunctionContainer", 5, "objectiveFunctions", &C::objectiveFunctionContainer},
        fw_Field{"stopConditionContainer", 6, "stopConditions", &C::stopConditionContainer},
        fw_Field{"variableContainer", 7, "variables", &C::variableContainer},
    };
  }

  // Every member of the part and of its bases, for the scripting access of the metadata.
  static constexpr auto Fields() { return TaskFields(); }
  static void InitializeMetadata(cls_ClassRegistrar& registrar);
  static void CowDtor(void* p);
  // Validates the items of the six containers against each other and against the task (its kind
  // by type id, and whether its algorithm is general).
  void AssertContents(unsigned kind, bool general) const;

  bool GetSuppressed() const { return suppressed; }
  void SetSuppressed(bool v) { suppressed = v; }
  const rgnC_Region& GetRegion() const { return region; }
  void SetRegion(const rgnC_Region& v) { region = v; }
  const kopC_ConstraintContainer& GetConstraintContainer() const { return constraintContainer; }
  kopC_ConstraintContainer& GetConstraintContainer() { return constraintContainer; }
  void SetConstraintContainer(const kopC_ConstraintContainer& v) { constraintContainer = v; }
  const kopC_DesignResponseContainer& GetDesignResponseContainer() const { return designResponseContainer; }
  kopC_DesignResponseContainer& GetDesignResponseContainer() { return designResponseContainer; }
  void SetDesignResponseContainer(const kopC_DesignResponseContainer& v) { designResponseContainer = v; }
  const kopC_GeometricRestrictionContainer& GetGeometricRestrictionContainer() const { return geometricRestrictionContainer; }
  kopC_GeometricRestrictionContainer& GetGeometricRestrictionContainer() { return geometricRestrictionContainer; }
  void SetGeometricRestrictionContainer(const kopC_GeometricRestrictionContainer& v) { geometricRestrictionContainer = v; }
  const kopC_ObjectiveFunctionContainer& GetObjectiveFunctionContainer() const { return objectiveFunctionContainer; }
  kopC_ObjectiveFunctionContainer& GetObjectiveFunctionContainer() { return objectiveFunctionContainer; }
  void SetObjectiveFunctionContainer(const kopC_ObjectiveFunctionContainer& v) { objectiveFunctionContainer = v; }
  const kopC_StopConditionContainer& GetStopConditionContainer() const { return stopConditionContainer; }
  kopC_StopConditionContainer& GetStopConditionContainer() { return stopConditionContainer; }
  void SetStopConditionContainer(const kopC_StopConditionContainer& v) { stopConditionContainer = v; }
  const kopC_VariableContainer& GetVariableContainer() const { return variableContainer; }
  kopC_VariableContainer& GetVariableContainer() { return variableContainer; }
  void SetVariableContainer(const kopC_VariableContainer& v) { variableContainer = v; }

 protected:
  kopC_Task() = default;
  kopC_Task(const kopC_Task&) = default;
  kopC_Task& operator=(const kopC_Task&) = default;
  explicit kopC_Task(const cls_ReadVisitor& r);

 protected:
  bool suppressed = false;
  rgnC_Region region;
  kopC_ConstraintContainer constraintContainer;
  kopC_DesignResponseContainer designResponseContainer;
  kopC_GeometricRestrictionContainer geometricRestrictionContainer;
  kopC_ObjectiveFunctionContainer objectiveFunctionContainer;
  kopC_StopConditionContainer stopConditionContainer;
  kopC_VariableContainer variableContainer;
};
