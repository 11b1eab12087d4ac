#include "kop/kopC_Task.h"

#include "framework/fw_FieldTable.h"
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
#include "kop/kopC_CyclicSymmetry.h"
#include "kop/kopC_DemoldControl.h"
#include "kop/kopC_DistanceControl.h"
#include "kop/kopC_DrillControl.h"
#include "kop/kopC_FixedRegion.h"
#include "kop/kopC_GrowthRestriction.h"
#include "kop/kopC_LocalStopCondition.h"
#include "kop/kopC_MemberSize.h"
#include "kop/kopC_MemberSizeRange.h"
#include "kop/kopC_OrimConstraint.h"
#include "kop/kopC_OrimObjectiveFunction.h"
#include "kop/kopC_OverhangControl.h"
#include "kop/kopC_PenetrationCheck.h"
#include "kop/kopC_PlanarSymmetry.h"
#include "kop/kopC_PointSymmetry.h"
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
#include "kop/kopC_SizingClusterAreas.h"
#include "kop/kopC_SizingCyclicSymmetry.h"
#include "kop/kopC_SizingFrozenArea.h"
#include "kop/kopC_SizingPlanarSymmetry.h"
#include "kop/kopC_SizingPointSymmetry.h"
#include "kop/kopC_SizingRotationalSymmetry.h"
#include "kop/kopC_SizingTask.h"
#include "kop/kopC_SlideRegion.h"
#include "kop/kopC_StampControl.h"
#include "kop/kopC_ThicknessControl.h"
#include "kop/kopC_TopologyTask.h"
#include "kop/kopC_TranslationalSymmetry.h"
#include "kop/kopC_TurnControl.h"
#include "kop/kopC_assert.h"

kopC_Task::kopC_Task(const cls_ReadVisitor& r) : kopC_BaseOptimization(r) {}
void kopC_Task::CowDtor(void* p) { cow_Destroy(static_cast<kopC_Task*>(static_cast<cls_Root<kopC_Task>*>(p))); }

// An abstract part of the family: its metadata lets readers and repositories treat the family
// as one, and lists the attributes this part adds to the rows of every kind.
void kopC_Task::InitializeMetadata(cls_ClassRegistrar& registrar) {
  auto* md = new fw_ClassMetadata<kopC_Task>();
  registrar.AddClassMD(md);
  md->AddDtor(&CowDtor);
  md->AddAttribute(cls_FieldHandle(0, "suppressed"), fw_Traits<bool>::kType, 1, fw_Traits<bool>::kCollection);
  md->AddAttribute(cls_FieldHandle(1, "region"), fw_Traits<rgnC_Region>::kType, 1, fw_Traits<rgnC_Region>::kCollection);
  md->AddAttribute(cls_FieldHandle(2, "constraintContainer"), fw_Traits<kopC_ConstraintContainer>::kType, 1, fw_Traits<kopC_ConstraintContainer>::kCollection);
  md->AddAttribute(cls_FieldHandle(3, "designResponseContainer"), fw_Traits<kopC_DesignResponseContainer>::kType, 1, fw_Traits<kopC_DesignResponseContainer>::kCollection);
  md->AddAttribute(cls_FieldHandle(4, "geometricRestrictionContainer"), fw_Traits<kopC_GeometricRestrictionContainer>::kType, 1, fw_Traits<kopC_GeometricRestrictionContainer>::kCollection);
  md->AddAttribute(cls_FieldHandle(5, "objectiveFunctionContainer"), fw_Traits<kopC_ObjectiveFunctionContainer>::kType, 1, fw_Traits<kopC_ObjectiveFunctionContainer>::kCollection);
  md->AddAttribute(cls_FieldHandle(6, "stopConditionContainer"), fw_Traits<kopC_StopConditionContainer>::kType, 1, fw_Traits<kopC_StopConditionContainer>::kCollection);
  md->AddAttribute(cls_FieldHandle(7, "variableContainer"), fw_Traits<kopC_VariableContainer>::kType, 1, fw_Traits<kopC_VariableContainer>::kCollection);
}

namespace {
bool IsTopology(unsigned kind) { return kind == kopC_TopologyTask::TypeId(); }

// The kind of task each geometric restriction serves; a frozen area serves every kind.
struct Fit {
  unsigned restriction;
  unsigned kind;
};
constexpr Fit kFits[] = {
    {kopC_MemberSize::TypeId(), kopC_TopologyTask::TypeId()},
    {kopC_MemberSizeRange::TypeId(), kopC_TopologyTask::TypeId()},
    {kopC_DemoldControl::TypeId(), kopC_TopologyTask::TypeId()},
    {kopC_OverhangControl::TypeId(), kopC_TopologyTask::TypeId()},
    {kopC_PlanarSymmetry::TypeId(), kopC_TopologyTask::TypeId()},
    {kopC_PointSymmetry::TypeId(), kopC_TopologyTask::TypeId()},
    {kopC_RotationalSymmetry::TypeId(), kopC_TopologyTask::TypeId()},
    {kopC_CyclicSymmetry::TypeId(), kopC_TopologyTask::TypeId()},
    {kopC_TranslationalSymmetry::TypeId(), kopC_TopologyTask::TypeId()},
    {kopC_StampControl::TypeId(), kopC_TopologyTask::TypeId()},
    {kopC_TurnControl::TypeId(), kopC_TopologyTask::TypeId()},
    {kopC_DrillControl::TypeId(), kopC_TopologyTask::TypeId()},
    {kopC_FixedRegion::TypeId(), kopC_ShapeTask::TypeId()},
    {kopC_SlideRegion::TypeId(), kopC_ShapeTask::TypeId()},
    {kopC_ShapeDemoldControl::TypeId(), kopC_ShapeTask::TypeId()},
    {kopC_ShapeMemberSize::TypeId(), kopC_ShapeTask::TypeId()},
    {kopC_ShapePlanarSymmetry::TypeId(), kopC_ShapeTask::TypeId()},
    {kopC_ShapePointSymmetry::TypeId(), kopC_ShapeTask::TypeId()},
    {kopC_ShapeRotationalSymmetry::TypeId(), kopC_ShapeTask::TypeId()},
    {kopC_ShapeCyclicSymmetry::TypeId(), kopC_ShapeTask::TypeId()},
    {kopC_ShapeTranslationalSymmetry::TypeId(), kopC_ShapeTask::TypeId()},
    {kopC_GrowthRestriction::TypeId(), kopC_ShapeTask::TypeId()},
    {kopC_PenetrationCheck::TypeId(), kopC_ShapeTask::TypeId()},
    {kopC_DistanceControl::TypeId(), kopC_ShapeTask::TypeId()},
    {kopC_ThicknessControl::TypeId(), kopC_SizingTask::TypeId()},
    {kopC_SizingFrozenArea::TypeId(), kopC_SizingTask::TypeId()},
    {kopC_SizingPlanarSymmetry::TypeId(), kopC_SizingTask::TypeId()},
    {kopC_SizingPointSymmetry::TypeId(), kopC_SizingTask::TypeId()},
    {kopC_SizingRotationalSymmetry::TypeId(), kopC_SizingTask::TypeId()},
    {kopC_SizingCyclicSymmetry::TypeId(), kopC_SizingTask::TypeId()},
    {kopC_SizingClusterAreas::TypeId(), kopC_SizingTask::TypeId()},
    {kopC_BeadFixedRegion::TypeId(), kopC_BeadTask::TypeId()},
    {kopC_BeadFrozenArea::TypeId(), kopC_BeadTask::TypeId()},
    {kopC_BeadGrowth::TypeId(), kopC_BeadTask::TypeId()},
    {kopC_BeadPlanarSymmetry::TypeId(), kopC_BeadTask::TypeId()},
    {kopC_BeadPointSymmetry::TypeId(), kopC_BeadTask::TypeId()},
    {kopC_BeadRotationalSymmetry::TypeId(), kopC_BeadTask::TypeId()},
    {kopC_BeadCyclicSymmetry::TypeId(), kopC_BeadTask::TypeId()},
    {kopC_BeadTranslationalSymmetry::TypeId(), kopC_BeadTask::TypeId()},
    {kopC_BeadPenetrationCheck::TypeId(), kopC_BeadTask::TypeId()},
    {kopC_RibControl::TypeId(), kopC_BeadTask::TypeId()},
};

bool RestrictionFits(unsigned restriction, unsigned kind) {
  for (const Fit& f : kFits)
    if (f.restriction == restriction) return f.kind == kind;
  return true;
}

// The identifier a constraint's design response reads, or empty for a combined term.
cow_String IdentifierOf(const kopC_DesignResponse& r) {
  if (auto* single = dynamic_cast<const kopC_SingleTermDesignResponse*>(&r)) return single->GetRequest().GetIdentifier();
  return cow_String();
}
}  // namespace

// Containers in a fixed order: responses, objectives, constraints, restrictions, stop conditions,
// variables; within one, in key order. Each item checks itself before the task checks how it fits.
void kopC_Task::AssertContents(unsigned kind, bool general) const {
  for (const auto& [name, response] : designResponseContainer.Items()) {
    kopC_Assert(!name.empty(), kopC_ResponseNameEmpty);
    response->AssertValid();
  }
  for (const auto& [name, function] : objectiveFunctionContainer.Items()) {
    function->AssertValid();
    auto* f = dynamic_cast<const kopC_OrimObjectiveFunction*>(&function.Get());
    if (!f) continue;
    if (!general && f->GetTarget() != kopC_TargetEnm::MINIMIZE_MAXIMUM)
      kopC_Assert(f->UnsuppressedCount() <= 1, kopC_ConditionBasedSingleObjective);
    std::size_t set = 0;
    for (const auto& o : f->GetObjectives())
      if (!o.IsNull() && !o->GetSuppressed() && o->GetReferenceValue() != kopC_kUnset) ++set;
    if (general) kopC_Assert(set == 0 || set == f->UnsuppressedCount(), kopC_ReferenceValuesMixed);
    else kopC_Assert(set == 0, kopC_ReferenceValuesNotDefault);
  }
  for (const auto& [name, constraint] : constraintContainer.Items()) {
    constraint->AssertValid();
    auto* c = dynamic_cast<const kopC_OrimConstraint*>(&constraint.Get());
    if (!c) continue;
    const kopC_DesignResponse* response = designResponseContainer.ConstGet(c->GetDesignResponse());
    kopC_Assert(response != nullptr, kopC_ResponseNotUsableWithConstraint);
    const cow_String id = IdentifierOf(*response);
    if (IsTopology(kind) && c->IsRelative() && (id == "VOLUME" || id == "WEIGHT"))
      kopC_Assert(c->GetRestrictionValue() > 0 && c->GetRestrictionValue() < 1, kopC_RelativeVolumeConstraint);
  }
  for (const auto& [name, restriction] : geometricRestrictionContainer.Items()) {
    restriction->AssertValid();
    kopC_Assert(RestrictionFits(restriction->ClassTypeId(), kind), kopC_RestrictionNotForTask);
    if (auto* size = dynamic_cast<const kopC_MemberSize*>(&restriction.Get()); size && !general)
      kopC_Assert(size->GetSizeRestriction() == kopC_MemberSize::SizeRestrictionEnm::MINIMUM, kopC_MemberSizeOnlyMinimum);
  }
  for (const auto& [name, condition] : stopConditionContainer.Items()) {
    condition->AssertValid();
    if (dynamic_cast<const kopC_LocalStopCondition*>(&condition.Get()))
      kopC_Assert(kind == kopC_ShapeTask::TypeId(), kopC_LocalStopOnlyShape);
  }
  for (const auto& [name, variable] : variableContainer.Items()) variable->AssertValid();
}
