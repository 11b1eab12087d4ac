#include "kop/QMXOdbKopC.h"

#include <iterator>
#include "kop/kopC_Advice.h"

#include "kop/kopC_BaseOptimization.h"
#include "kop/kopC_BeadCyclicSymmetry.h"
#include "kop/kopC_BeadFixedRegion.h"
#include "kop/kopC_BeadFrozenArea.h"
#include "kop/kopC_BeadGrowth.h"
#include "kop/kopC_BeadPenetrationCheck.h"
#include "kop/kopC_BeadPlanarSymmetry.h"
#include "kop/kopC_BeadPointSymmetry.h"
#include "kop/kopC_BeadRotationalSymmetry.h"
#include "kop/kopC_BeadTask.h"
#include "kop/kopC_BeadTranslationalSymmetry.h"
#include "kop/kopC_CombinedTermDesignResponse.h"
#include "kop/kopC_CombinedTermRequest.h"
#include "kop/kopC_CombinedVariable.h"
#include "kop/kopC_Constraint.h"
#include "kop/kopC_ConstraintContainer.h"
#include "kop/kopC_CyclicSymmetry.h"
#include "kop/kopC_DemoldControl.h"
#include "kop/kopC_Descriptions.h"
#include "kop/kopC_DesignResponse.h"
#include "kop/kopC_DesignResponseContainer.h"
#include "kop/kopC_DistanceControl.h"
#include "kop/kopC_DrillControl.h"
#include "kop/kopC_FixedRegion.h"
#include "kop/kopC_FrozenArea.h"
#include "kop/kopC_GeometricRestriction.h"
#include "kop/kopC_GeometricRestrictionContainer.h"
#include "kop/kopC_GrowthRestriction.h"
#include "kop/kopC_Labels.h"
#include "kop/kopC_LocalStopCondition.h"
#include "kop/kopC_MemberSize.h"
#include "kop/kopC_MemberSizeRange.h"
#include "kop/kopC_Objective.h"
#include "kop/kopC_ObjectiveFunction.h"
#include "kop/kopC_ObjectiveFunctionContainer.h"
#include "kop/kopC_OrimConstraint.h"
#include "kop/kopC_OrimDesignResponse.h"
#include "kop/kopC_OrimObjectiveFunction.h"
#include "kop/kopC_OrimStopCondition.h"
#include "kop/kopC_OrimTask.h"
#include "kop/kopC_OrimTask_1554.h"
#include "kop/kopC_OrimTask_1562.h"
#include "kop/kopC_OrimTask_1629.h"
#include "kop/kopC_OrimTask_1859.h"
#include "kop/kopC_OverhangControl.h"
#include "kop/kopC_PenetrationCheck.h"
#include "kop/kopC_PlanarSymmetry.h"
#include "kop/kopC_PointSymmetry.h"
#include "kop/kopC_Request.h"
#include "kop/kopC_RibControl.h"
#include "kop/kopC_RotationalSymmetry.h"
#include "kop/kopC_ShapeCyclicSymmetry.h"
#include "kop/kopC_ShapeDemoldControl.h"
#include "kop/kopC_ShapeMemberSize.h"
#include "kop/kopC_ShapePlanarSymmetry.h"
#include "kop/kopC_ShapePointSymmetry.h"
#include "kop/kopC_ShapeRotationalSymmetry.h"
#include "kop/kopC_ShapeTask.h"
#include "kop/kopC_ShapeTranslationalSymmetry.h"
#include "kop/kopC_SingleTermDesignResponse.h"
#include "kop/kopC_SingleTermRequest.h"
#include "kop/kopC_SingleVariable.h"
#include "kop/kopC_SizingClusterAreas.h"
#include "kop/kopC_SizingCyclicSymmetry.h"
#include "kop/kopC_SizingFrozenArea.h"
#include "kop/kopC_SizingPlanarSymmetry.h"
#include "kop/kopC_SizingPointSymmetry.h"
#include "kop/kopC_SizingRotationalSymmetry.h"
#include "kop/kopC_SizingTask.h"
#include "kop/kopC_SlideRegion.h"
#include "kop/kopC_StampControl.h"
#include "kop/kopC_StepOption.h"
#include "kop/kopC_StopCondition.h"
#include "kop/kopC_StopConditionContainer.h"
#include "kop/kopC_TCWrapper.h"
#include "kop/kopC_Task.h"
#include "kop/kopC_TaskContainer.h"
#include "kop/kopC_ThicknessControl.h"
#include "kop/kopC_TopologyTask.h"
#include "kop/kopC_TopologyTask_1554.h"
#include "kop/kopC_TranslationalSymmetry.h"
#include "kop/kopC_TurnControl.h"
#include "kop/kopC_Variable.h"
#include "kop/kopC_VariableContainer.h"
#include "platform/base/bas_StartCount.h"
#include "platform/base/bas_StartJournal.h"
#include "platform/base/omi_Singleton.h"
#include "platform/model/ddr_Model.h"
#include "platform/persist/cls_ClassRegistrar.h"

namespace {
int count = 0;
constexpr std::uint16_t kArchKey = 932;

// Row i names the class whose type id is (932 << 16) | i. The task kinds sit at the rows their
// stored type ids have always had (8, 9, 105, 120); a shortcut's first number is the row of the
// implementation class it addresses.
constexpr typ_ArchCompRecord kArchRows[] = {
    {0, 0, 0, nullptr},
    {7, 1, 0, "kopC_BaseOptimization"},
    {7, 1, 10, "kopC_TaskContainer"},
    {7, 13, 10, "kopC_TCWrapper"},
    {7, 1, 0, "kopC_Task"},
    {7, 1, 0, "kopC_TaskIMPLSC"},
    {7, 1, 0, "kopC_TaskShortcut"},
    {7, 1, 0, "kopC_OrimTask"},
    {7, 1, 0, "kopC_TopologyTask"},
    {7, 1, 0, "kopC_ShapeTask"},
    {7, 1, 0, "kopC_BaseOptimizationIMPLSC"},
    {7, 1, 0, "kopC_BaseOptimizationShortcut"},
    {7, 5, 932, "kopC_TaskInTaskContainerShortcut"},
    {7, 1, 0, "kopC_TaskContainerIMPLSC"},
    {7, 1, 0, "kopC_TaskContainerShortcut"},
    {7, 13, 932, "kopC_TaskContainerInModelShortcut"},
    {7, 1, 0, "kopC_DesignResponse"},
    {7, 1, 0, "kopC_OrimDesignResponse"},
    {7, 1, 0, "kopC_SingleTermDesignResponse"},
    {7, 1, 0, "kopC_CombinedTermDesignResponse"},
    {7, 1, 0, "kopC_Request"},
    {7, 1, 0, "kopC_SingleTermRequest"},
    {7, 1, 0, "kopC_CombinedTermRequest"},
    {7, 1, 0, "kopC_StepOption"},
    {7, 1, 10, "kopC_DesignResponseContainer"},
    {7, 1, 0, "kopC_DesignResponseIMPLSC"},
    {7, 1, 0, "kopC_DesignResponseShortcut"},
    {7, 25, 932, "kopC_DesignResponseInDesignResponseContainerShortcut"},
    {7, 1, 0, "kopC_DesignResponseContainerIMPLSC"},
    {7, 1, 0, "kopC_DesignResponseContainerShortcut"},
    {7, 28, 932, "kopC_DesignResponseContainerInModelShortcut"},
    {7, 1, 0, "kopC_ObjectiveFunction"},
    {7, 1, 0, "kopC_OrimObjectiveFunction"},
    {7, 1, 0, "kopC_Objective"},
    {7, 1, 10, "kopC_ObjectiveFunctionContainer"},
    {7, 1, 0, "kopC_ObjectiveFunctionIMPLSC"},
    {7, 1, 0, "kopC_ObjectiveFunctionShortcut"},
    {7, 35, 932, "kopC_ObjectiveFunctionInObjectiveFunctionContainerShortcut"},
    {7, 1, 0, "kopC_ObjectiveFunctionContainerIMPLSC"},
    {7, 1, 0, "kopC_ObjectiveFunctionContainerShortcut"},
    {7, 38, 932, "kopC_ObjectiveFunctionContainerInModelShortcut"},
    {7, 1, 0, "kopC_Constraint"},
    {7, 1, 0, "kopC_OrimConstraint"},
    {7, 1, 10, "kopC_ConstraintContainer"},
    {7, 1, 0, "kopC_ConstraintIMPLSC"},
    {7, 1, 0, "kopC_ConstraintShortcut"},
    {7, 44, 932, "kopC_ConstraintInConstraintContainerShortcut"},
    {7, 1, 0, "kopC_ConstraintContainerIMPLSC"},
    {7, 1, 0, "kopC_ConstraintContainerShortcut"},
    {7, 47, 932, "kopC_ConstraintContainerInModelShortcut"},
    {7, 1, 0, "kopC_StopCondition"},
    {7, 1, 0, "kopC_OrimStopCondition"},
    {7, 1, 0, "kopC_LocalStopCondition"},
    {7, 1, 10, "kopC_StopConditionContainer"},
    {7, 1, 0, "kopC_StopConditionIMPLSC"},
    {7, 1, 0, "kopC_StopConditionShortcut"},
    {7, 54, 932, "kopC_StopConditionInStopConditionContainerShortcut"},
    {7, 1, 0, "kopC_StopConditionContainerIMPLSC"},
    {7, 1, 0, "kopC_StopConditionContainerShortcut"},
    {7, 57, 932, "kopC_StopConditionContainerInModelShortcut"},
    {7, 1, 0, "kopC_Variable"},
    {7, 1, 0, "kopC_SingleVariable"},
    {7, 1, 0, "kopC_CombinedVariable"},
    {7, 1, 10, "kopC_VariableContainer"},
    {7, 1, 0, "kopC_VariableIMPLSC"},
    {7, 1, 0, "kopC_VariableShortcut"},
    {7, 64, 932, "kopC_VariableInVariableContainerShortcut"},
    {7, 1, 0, "kopC_VariableContainerIMPLSC"},
    {7, 1, 0, "kopC_VariableContainerShortcut"},
    {7, 67, 932, "kopC_VariableContainerInModelShortcut"},
    {7, 1, 0, "kopC_MemberSizeRange"},
    {7, 1, 0, "kopC_BaseVariableShortcut"},
    {7, 1, 0, "kopC_GeometricRestriction"},
    {7, 1, 10, "kopC_GeometricRestrictionContainer"},
    {7, 1, 0, "kopC_GeometricRestrictionIMPLSC"},
    {7, 1, 0, "kopC_GeometricRestrictionShortcut"},
    {7, 74, 932, "kopC_GeometricRestrictionInGeometricRestrictionContainerShortcut"},
    {7, 1, 0, "kopC_GeometricRestrictionContainerIMPLSC"},
    {7, 1, 0, "kopC_GeometricRestrictionContainerShortcut"},
    {7, 77, 932, "kopC_GeometricRestrictionContainerInModelShortcut"},
    {7, 1, 0, "kopC_FrozenArea"},
    {7, 1, 0, "kopC_MemberSize"},
    {7, 1, 0, "kopC_DemoldControl"},
    {7, 1, 0, "kopC_FixedRegion"},
    {7, 1, 0, "kopC_SlideRegion"},
    {7, 1, 0, "kopC_PlanarSymmetry"},
    {7, 1, 0, "kopC_PointSymmetry"},
    {7, 1, 0, "kopC_RotationalSymmetry"},
    {7, 1, 0, "kopC_CyclicSymmetry"},
    {7, 1, 0, "kopC_StampControl"},
    {7, 1, 0, "kopC_TurnControl"},
    {7, 1, 0, "kopC_DrillControl"},
    {7, 1, 0, "kopC_ShapeDemoldControl"},
    {7, 1, 0, "kopC_ShapeMemberSize"},
    {7, 1, 0, "kopC_ShapePlanarSymmetry"},
    {7, 1, 0, "kopC_ShapeRotationalSymmetry"},
    {7, 1, 0, "kopC_ShapeCyclicSymmetry"},
    {7, 1, 0, "kopC_ShapePointSymmetry"},
    {7, 1, 0, "kopC_GrowthRestriction"},
    {7, 1, 0, "kopC_PenetrationCheck"},
    {7, 1, 0, "kopC_OverhangControl"},
    {7, 1, 0, "kopC_RibControl"},
    {7, 1, 0, "kopC_ThicknessControl"},
    {7, 1, 0, "kopC_SizingFrozenArea"},
    {7, 1, 0, "kopC_SizingPlanarSymmetry"},
    {7, 1, 0, "kopC_SizingTask"},
    {7, 1, 0, "kopC_SizingCyclicSymmetry"},
    {7, 1, 0, "kopC_SizingRotationalSymmetry"},
    {7, 1, 0, "kopC_SizingPointSymmetry"},
    {7, 1, 0, "kopC_BeadFixedRegion"},
    {7, 1, 0, "kopC_BeadFrozenArea"},
    {7, 1, 0, "kopC_BeadGrowth"},
    {7, 1, 0, "kopC_BeadPlanarSymmetry"},
    {7, 1, 0, "kopC_BeadPointSymmetry"},
    {7, 1, 0, "kopC_BeadRotationalSymmetry"},
    {7, 1, 0, "kopC_BeadCyclicSymmetry"},
    {7, 1, 0, "kopC_SizingClusterAreas"},
    {7, 1, 0, "kopC_BeadPenetrationCheck"},
    {7, 1, 0, "kopC_TaskTypeLabelMap"},
    {7, 1, 0, "kopC_ShortenedTaskTypeLabelMap"},
    {7, 1, 0, "kopC_BeadTask"},
    {7, 1, 0, "kopC_VariableSpecLabelMap"},
    {7, 1, 0, "kopC_TranslationalSymmetry"},
    {7, 1, 0, "kopC_ShapeTranslationalSymmetry"},
    {7, 1, 0, "kopC_BeadTranslationalSymmetry"},
    {7, 1, 0, "kopC_DistanceControl"},
};
static_assert(std::size(kArchRows) == 126);
}  // namespace

typ_ArchCompEntry kopC_ArchEntry() {
  return typ_ArchCompEntry(kArchRows, static_cast<int>(std::size(kArchRows)));
}

void kopC_formalize() {}

int QMXOdbKopC_count() { return count; }

void QMXOdbKopC_initialize(int& tally) {
  if (!bas_FirstStart(count, tally)) return;
  kopC_RegisterDescriptions();
  kopC_RegisterAdvice();
  bas_StartJournal::Start("QMXOdbKopC");
  typ_ArchCompTable::InsertEntry(kArchKey, kopC_ArchEntry());
  {
    kopC_TaskContainer tasks;
    kopC_TCWrapper prototype(tasks);
    ddr_Model::RegisterExtension(prototype);
    bas_StartJournal::Register("kopC_TCWrapper");
  }
  auto& metadata = omi_Singleton<cls_MetadataRegistrar>::Instance();
  metadata.initClassMetadata(&kopC_BaseOptimization::InitializeMetadata, 7);
  metadata.initClassMetadata(&kopC_Task::InitializeMetadata, 7);
  metadata.initClassMetadata(&kopC_OrimTask::InitializeMetadata, 7);
  metadata.initClassMetadata(&kopC_TopologyTask::InitializeMetadata, 7);
  metadata.initClassMetadata(&kopC_ShapeTask::InitializeMetadata, 7);
  metadata.initClassMetadata(&kopC_SizingTask::InitializeMetadata, 7);
  metadata.initClassMetadata(&kopC_BeadTask::InitializeMetadata, 7);
  metadata.initClassMetadata(&kopC_Request::InitializeMetadata, 7);
  metadata.initClassMetadata(&kopC_SingleTermRequest::InitializeMetadata, 7);
  metadata.initClassMetadata(&kopC_CombinedTermRequest::InitializeMetadata, 7);
  metadata.initClassMetadata(&kopC_StepOption::InitializeMetadata, 7);
  metadata.initClassMetadata(&kopC_DesignResponse::InitializeMetadata, 7);
  metadata.initClassMetadata(&kopC_OrimDesignResponse::InitializeMetadata, 7);
  metadata.initClassMetadata(&kopC_SingleTermDesignResponse::InitializeMetadata, 7);
  metadata.initClassMetadata(&kopC_CombinedTermDesignResponse::InitializeMetadata, 7);
  metadata.initClassMetadata(&kopC_ObjectiveFunction::InitializeMetadata, 7);
  metadata.initClassMetadata(&kopC_OrimObjectiveFunction::InitializeMetadata, 7);
  metadata.initClassMetadata(&kopC_Objective::InitializeMetadata, 7);
  metadata.initClassMetadata(&kopC_Constraint::InitializeMetadata, 7);
  metadata.initClassMetadata(&kopC_OrimConstraint::InitializeMetadata, 7);
  metadata.initClassMetadata(&kopC_StopCondition::InitializeMetadata, 7);
  metadata.initClassMetadata(&kopC_OrimStopCondition::InitializeMetadata, 7);
  metadata.initClassMetadata(&kopC_LocalStopCondition::InitializeMetadata, 7);
  metadata.initClassMetadata(&kopC_Variable::InitializeMetadata, 7);
  metadata.initClassMetadata(&kopC_SingleVariable::InitializeMetadata, 7);
  metadata.initClassMetadata(&kopC_CombinedVariable::InitializeMetadata, 7);
  metadata.initClassMetadata(&kopC_GeometricRestriction::InitializeMetadata, 7);
  metadata.initClassMetadata(&kopC_FrozenArea::InitializeMetadata, 7);
  metadata.initClassMetadata(&kopC_MemberSize::InitializeMetadata, 7);
  metadata.initClassMetadata(&kopC_DemoldControl::InitializeMetadata, 7);
  metadata.initClassMetadata(&kopC_FixedRegion::InitializeMetadata, 7);
  metadata.initClassMetadata(&kopC_SlideRegion::InitializeMetadata, 7);
  metadata.initClassMetadata(&kopC_PlanarSymmetry::InitializeMetadata, 7);
  metadata.initClassMetadata(&kopC_RotationalSymmetry::InitializeMetadata, 7);
  metadata.initClassMetadata(&kopC_OverhangControl::InitializeMetadata, 7);
  metadata.initClassMetadata(&kopC_RibControl::InitializeMetadata, 7);
  metadata.initClassMetadata(&kopC_PointSymmetry::InitializeMetadata, 7);
  metadata.initClassMetadata(&kopC_CyclicSymmetry::InitializeMetadata, 7);
  metadata.initClassMetadata(&kopC_StampControl::InitializeMetadata, 7);
  metadata.initClassMetadata(&kopC_TurnControl::InitializeMetadata, 7);
  metadata.initClassMetadata(&kopC_DrillControl::InitializeMetadata, 7);
  metadata.initClassMetadata(&kopC_ShapeDemoldControl::InitializeMetadata, 7);
  metadata.initClassMetadata(&kopC_ShapeMemberSize::InitializeMetadata, 7);
  metadata.initClassMetadata(&kopC_ShapePlanarSymmetry::InitializeMetadata, 7);
  metadata.initClassMetadata(&kopC_ShapePointSymmetry::InitializeMetadata, 7);
  metadata.initClassMetadata(&kopC_ShapeRotationalSymmetry::InitializeMetadata, 7);
  metadata.initClassMetadata(&kopC_ShapeCyclicSymmetry::InitializeMetadata, 7);
  metadata.initClassMetadata(&kopC_GrowthRestriction::InitializeMetadata, 7);
  metadata.initClassMetadata(&kopC_PenetrationCheck::InitializeMetadata, 7);
  metadata.initClassMetadata(&kopC_ThicknessControl::InitializeMetadata, 7);
  metadata.initClassMetadata(&kopC_SizingFrozenArea::InitializeMetadata, 7);
  metadata.initClassMetadata(&kopC_SizingPlanarSymmetry::InitializeMetadata, 7);
  metadata.initClassMetadata(&kopC_SizingPointSymmetry::InitializeMetadata, 7);
  metadata.initClassMetadata(&kopC_SizingRotationalSymmetry::InitializeMetadata, 7);
  metadata.initClassMetadata(&kopC_SizingCyclicSymmetry::InitializeMetadata, 7);
  metadata.initClassMetadata(&kopC_BeadFixedRegion::InitializeMetadata, 7);
  metadata.initClassMetadata(&kopC_BeadFrozenArea::InitializeMetadata, 7);
  metadata.initClassMetadata(&kopC_BeadGrowth::InitializeMetadata, 7);
  metadata.initClassMetadata(&kopC_BeadPlanarSymmetry::InitializeMetadata, 7);
  metadata.initClassMetadata(&kopC_BeadPointSymmetry::InitializeMetadata, 7);
  metadata.initClassMetadata(&kopC_BeadRotationalSymmetry::InitializeMetadata, 7);
  metadata.initClassMetadata(&kopC_BeadCyclicSymmetry::InitializeMetadata, 7);
  metadata.initClassMetadata(&kopC_SizingClusterAreas::InitializeMetadata, 7);
  metadata.initClassMetadata(&kopC_BeadPenetrationCheck::InitializeMetadata, 7);
  metadata.initClassMetadata(&kopC_TranslationalSymmetry::InitializeMetadata, 7);
  metadata.initClassMetadata(&kopC_ShapeTranslationalSymmetry::InitializeMetadata, 7);
  metadata.initClassMetadata(&kopC_BeadTranslationalSymmetry::InitializeMetadata, 7);
  metadata.initClassMetadata(&kopC_DistanceControl::InitializeMetadata, 7);
  metadata.initClassMetadata(&kopC_MemberSizeRange::InitializeMetadata, 7);
  metadata.initClassMetadata(&kopC_ConstraintContainer::InitializeMetadata, 3);
  metadata.initClassMetadata(&kopC_DesignResponseContainer::InitializeMetadata, 3);
  metadata.initClassMetadata(&kopC_GeometricRestrictionContainer::InitializeMetadata, 3);
  metadata.initClassMetadata(&kopC_ObjectiveFunctionContainer::InitializeMetadata, 3);
  metadata.initClassMetadata(&kopC_StopConditionContainer::InitializeMetadata, 3);
  metadata.initClassMetadata(&kopC_VariableContainer::InitializeMetadata, 3);
  metadata.initClassMetadata(&kopC_TaskContainer::InitializeMetadata, 3);
  metadata.initClassMetadata(&kopC_TCWrapper::InitializeMetadata, 4);
  auto& old = omi_Singleton<dbc_OldClassRegistrar>::Instance();
  old.Register(cow_CountedHld<dbc_OldClassVersion>(new kopC_OrimTask_1554), 5);
  old.Register(cow_CountedHld<dbc_OldClassVersion>(new kopC_OrimTask_1562), 5);
  old.Register(cow_CountedHld<dbc_OldClassVersion>(new kopC_OrimTask_1629), 5);
  old.Register(cow_CountedHld<dbc_OldClassVersion>(new kopC_OrimTask_1859), 5);
  old.Register(cow_CountedHld<dbc_OldClassVersion>(new kopC_TopologyTask_1554), 5);
}

void QMXOdbKopC_finalize(int& tally) {
  if (!bas_LastStop(count, tally)) return;
  kopC_UnregisterDescriptions();
  kopC_UnregisterAdvice();
  bas_StartJournal::Stop("QMXOdbKopC");
  ddr_Model::UnRegisterExtension(kopC_TaskContainer::Names::kRepositoryName);
  kopC_TaskTypeLabelMap::Finalize();
  kopC_ShortenedTaskTypeLabelMap::Finalize();
  kopC_VariableSpecLabelMap::Finalize();
}
