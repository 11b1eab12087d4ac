#include "kop/kopC_Descriptions.h"
#include "kop/kopC_assert.h"

// What the classes of the module and their members mean, by scripting name.
namespace {
constexpr cls_MemberDescription kKopDescBeadCyclicSymmetry[] = {
    {"region", "The region it applies to"},
    {"repetitiveSectors", "Repetitive sectors"},
    {"angle", "Angle (degrees)"},
};
constexpr int kKopCodesBeadCyclicSymmetry[] = {35};
constexpr cls_MemberDescription kKopDescBeadFixedRegion[] = {
    {"region", "The region it applies to"},
    {"u1", "Whether displacement along direction 1 is constrained"},
    {"u2", "Whether displacement along direction 2 is constrained"},
    {"u3", "Whether displacement along direction 3 is constrained"},
};
constexpr int kKopCodesBeadFixedRegion[] = {126};
constexpr cls_MemberDescription kKopDescBeadFrozenArea[] = {
    {"region", "The region it applies to"},
};
constexpr cls_MemberDescription kKopDescBeadGrowth[] = {
    {"region", "The region it applies to"},
    {"growth", "Growth"},
    {"shrink", "Shrink"},
};
constexpr int kKopCodesBeadGrowth[] = {61, 59, 60};
constexpr cls_MemberDescription kKopDescBeadPenetrationCheck[] = {
    {"region", "The region it applies to"},
    {"penetrationCheckRegion", "Penetration check region"},
};
constexpr cls_MemberDescription kKopDescBeadPlanarSymmetry[] = {
    {"region", "The region it applies to"},
    {"axis", "Axis"},
};
constexpr cls_MemberDescription kKopDescBeadPointSymmetry[] = {
    {"region", "The region it applies to"},
};
constexpr cls_MemberDescription kKopDescBeadRotationalSymmetry[] = {
    {"region", "The region it applies to"},
    {"angle", "Angle (degrees)"},
};
constexpr int kKopCodesBeadRotationalSymmetry[] = {16};
constexpr cls_MemberDescription kKopDescBeadTask[] = {
    {"frozenBoundaryConditionRegion", "Frozen boundary condition region"},
    {"nodeUpdateStrategy", "Node update strategy"},
    {"nodalMoveLimit", "Nodal move limit"},
    {"numTrackedModes", "Num tracked modes"},
    {"modeTrackingRegion", "Mode tracking region"},
    {"updateNodalNormals", "Update nodal normals"},
    {"flipNormalDir", "Flip normal dir"},
    {"beadWidth", "Bead width (greater than 0)"},
    {"minStress", "Min stress (not negative)"},
    {"maxMembraneStress", "Max membrane stress (not negative)"},
    {"curveSmooth", "Curve smooth (greater than 0)"},
    {"nodeSmooth", "Node smooth (greater than 0)"},
    {"beadIter", "Bead iter (at least 1)"},
    {"beadPerturbation", "Bead perturbation (greater than 0)"},
    {"filterRadius", "Filter radius"},
    {"isSensCalcOnlyOnDesignNodes", "Is sens calc only on design nodes"},
    {"areBCRegionsFrozen", "Are BC regions frozen"},
    {"updateShapeBasisVectors", "Update shape basis vectors"},
};
constexpr int kKopCodesBeadTask[] = {43, 65, 117, 118, 119, 120, 121, 122, 123};
constexpr cls_MemberDescription kKopDescBeadTranslationalSymmetry[] = {
    {"region", "The region it applies to"},
    {"translation", "Translation"},
};
constexpr int kKopCodesBeadTranslationalSymmetry[] = {17};
constexpr cls_MemberDescription kKopDescCombinedTermDesignResponse[] = {
    {"request", "Request"},
};
constexpr cls_MemberDescription kKopDescCombinedTermRequest[] = {
    {"terms", "Terms"},
    {"weights", "Weights"},
    {"method", "Method"},
    {"useVariableTerms", "Use variable terms"},
    {"filterMaxRadius", "Filter max radius"},
    {"filterExponent", "Filter exponent"},
    {"filterRadiusReduction", "Filter radius reduction"},
    {"lowCutOff", "Low cut off"},
    {"highCutOff", "High cut off"},
};
constexpr int kKopCodesCombinedTermRequest[] = {18, 22, 27, 23, 25, 26, 24, 20, 21};
constexpr cls_MemberDescription kKopDescCombinedVariable[] = {
    {"terms", "Terms"},
    {"method", "Method"},
};
constexpr int kKopCodesCombinedVariable[] = {22};
constexpr cls_MemberDescription kKopDescCyclicSymmetry[] = {
    {"region", "The region it applies to"},
    {"repetitiveSectors", "Repetitive sectors"},
    {"angle", "Angle (degrees)"},
};
constexpr int kKopCodesCyclicSymmetry[] = {35};
constexpr cls_MemberDescription kKopDescDemoldControl[] = {
    {"region", "The region it applies to"},
    {"technique", "Technique"},
    {"draftAngle", "Draft angle"},
};
constexpr int kKopCodesDemoldControl[] = {101, 102};
constexpr cls_MemberDescription kKopDescDistanceControl[] = {
    {"region", "The region it applies to"},
    {"referenceRegion", "Reference region"},
    {"distance", "Distance"},
};
constexpr int kKopCodesDistanceControl[] = {57};
constexpr cls_MemberDescription kKopDescDrillControl[] = {
    {"region", "The region it applies to"},
    {"technique", "Technique"},
    {"pointRegion", "Point region"},
};
constexpr int kKopCodesDrillControl[] = {9};
constexpr cls_MemberDescription kKopDescFixedRegion[] = {
    {"region", "The region it applies to"},
    {"u1", "Whether displacement along direction 1 is constrained"},
    {"u2", "Whether displacement along direction 2 is constrained"},
    {"u3", "Whether displacement along direction 3 is constrained"},
};
constexpr int kKopCodesFixedRegion[] = {126};
constexpr cls_MemberDescription kKopDescFrozenArea[] = {
    {"region", "The region it applies to"},
};
constexpr cls_MemberDescription kKopDescGrowthRestriction[] = {
    {"region", "The region it applies to"},
    {"growth", "Growth"},
    {"shrink", "Shrink"},
};
constexpr int kKopCodesGrowthRestriction[] = {61, 59, 60};
constexpr cls_MemberDescription kKopDescLocalStopCondition[] = {
    {"identifier", "Identifier"},
    {"identifierOperation", "Identifier operation"},
    {"comparisonOperation", "Comparison operation"},
    {"referenceDesignCycle", "Reference design cycle"},
    {"referenceFactor", "Reference factor"},
    {"referenceOperation", "Reference operation"},
    {"referenceIteration", "Reference iteration"},
    {"region", "The region it applies to"},
};
constexpr int kKopCodesLocalStopCondition[] = {5, 14};
constexpr cls_MemberDescription kKopDescMemberSize[] = {
    {"region", "The region it applies to"},
    {"sizeRestriction", "Size restriction"},
    {"minThickness", "Min thickness"},
    {"maxThickness", "Max thickness"},
};
constexpr int kKopCodesMemberSize[] = {52, 53, 56};
constexpr cls_MemberDescription kKopDescMemberSizeRange[] = {
    {"region", "The region it applies to"},
    {"minWidth", "Min width"},
    {"maxWidth", "Max width"},
    {"memberSize", "Member size"},
};
constexpr int kKopCodesMemberSizeRange[] = {54, 55, 58};
constexpr cls_MemberDescription kKopDescObjective[] = {
    {"designResponse", "Design response (name)"},
    {"weight", "Weight"},
    {"referenceValue", "Reference value"},
    {"referenceValueVariable", "Reference value variable"},
    {"suppressed", "Suppressed"},
};
constexpr int kKopCodesObjective[] = {100};
constexpr cls_MemberDescription kKopDescOrimConstraint[] = {
    {"designResponse", "Design response (name)"},
    {"restrictionMethod", "Enumeration below"},
    {"restrictionValue", "Restriction value"},
};
constexpr int kKopCodesOrimConstraint[] = {0};
constexpr cls_MemberDescription kKopDescOrimObjectiveFunction[] = {
    {"target", "Target"},
    {"objectives", "Objectives (list of Objective)"},
};
constexpr int kKopCodesOrimObjectiveFunction[] = {3};
constexpr cls_MemberDescription kKopDescOrimStopCondition[] = {
    {"designResponse", "Design response"},
    {"comparisonOperation", "Comparison operation"},
    {"referenceValue", "Reference value"},
};
constexpr int kKopCodesOrimStopCondition[] = {5};
constexpr cls_MemberDescription kKopDescOrimTask[] = {
    {"algorithm", "The optimization algorithm"},
    {"tessarSensitivities", "Tessar sensitivities"},
    {"groupOperator", "Group operator"},
};
constexpr cls_MemberDescription kKopDescOverhangControl[] = {
    {"region", "The region it applies to"},
    {"overhangAngle", "Overhang angle"},
    {"radius", "Radius"},
    {"filterRadius", "Filter radius"},
};
constexpr int kKopCodesOverhangControl[] = {132, 133, 134};
constexpr cls_MemberDescription kKopDescPenetrationCheck[] = {
    {"region", "The region it applies to"},
    {"penetrationCheckRegion", "Penetration check region"},
};
constexpr cls_MemberDescription kKopDescPlanarSymmetry[] = {
    {"region", "The region it applies to"},
    {"axis", "Axis"},
};
constexpr cls_MemberDescription kKopDescPointSymmetry[] = {
    {"region", "The region it applies to"},
};
constexpr cls_MemberDescription kKopDescRibControl[] = {
    {"region", "The region it applies to"},
    {"ribThickness", "Rib thickness"},
    {"ribDistance", "Rib distance"},
};
constexpr int kKopCodesRibControl[] = {135, 136};
constexpr cls_MemberDescription kKopDescRotationalSymmetry[] = {
    {"region", "The region it applies to"},
    {"angle", "Angle (degrees)"},
};
constexpr int kKopCodesRotationalSymmetry[] = {16};
constexpr cls_MemberDescription kKopDescShapeCyclicSymmetry[] = {
    {"region", "The region it applies to"},
    {"repetitiveSectors", "Repetitive sectors"},
    {"angle", "Angle (degrees)"},
};
constexpr int kKopCodesShapeCyclicSymmetry[] = {35};
constexpr cls_MemberDescription kKopDescShapeDemoldControl[] = {
    {"region", "The region it applies to"},
    {"drawAngle", "Draw angle"},
    {"undercutTolerance", "Undercut tolerance"},
    {"collisionCheckTolerance", "Collision check tolerance"},
};
constexpr int kKopCodesShapeDemoldControl[] = {10, 11, 12};
constexpr cls_MemberDescription kKopDescShapeMemberSize[] = {
    {"region", "The region it applies to"},
    {"sizeRestriction", "Size restriction"},
    {"minThickness", "Min thickness"},
    {"maxThickness", "Max thickness"},
};
constexpr int kKopCodesShapeMemberSize[] = {8, 52, 53};
constexpr cls_MemberDescription kKopDescShapePlanarSymmetry[] = {
    {"region", "The region it applies to"},
    {"axis", "Axis"},
};
constexpr cls_ClassDescription kKopDescriptions1[] = {
    {"kopC_BeadCyclicSymmetry",
     "Keeps a bead design repeating itself in sectors about an axis.",
     kKopDescBeadCyclicSymmetry, nullptr, kKopCodesBeadCyclicSymmetry},
    {"kopC_BeadFixedRegion",
     "Nodes of a bead design held in some directions.",
     kKopDescBeadFixedRegion, nullptr, kKopCodesBeadFixedRegion},
    {"kopC_BeadFrozenArea",
     "Nodes a bead task leaves where they are.",
     kKopDescBeadFrozenArea},
    {"kopC_BeadGrowth",
     "Limits how far the nodes of a bead design grow or shrink.",
     kKopDescBeadGrowth, nullptr, kKopCodesBeadGrowth},
    {"kopC_BeadPenetrationCheck",
     "Keeps the nodes of a bead design from moving through a surface.",
     kKopDescBeadPenetrationCheck},
    {"kopC_BeadPlanarSymmetry",
     "Keeps a bead design symmetric about a plane of a coordinate system.",
     kKopDescBeadPlanarSymmetry},
    {"kopC_BeadPointSymmetry",
     "Keeps a bead design symmetric about a point.",
     kKopDescBeadPointSymmetry},
    {"kopC_BeadRotationalSymmetry",
     "Keeps a bead design repeating itself by an angle about an axis.",
     kKopDescBeadRotationalSymmetry, nullptr, kKopCodesBeadRotationalSymmetry},
    {"kopC_BeadTask",
     "A bead optimization task: shell nodes move along their normals to form stiffening beads.",
     kKopDescBeadTask, "kopC_OrimTask", kKopCodesBeadTask},
    {"kopC_BeadTranslationalSymmetry",
     "Keeps a bead design repeating itself along a direction.",
     kKopDescBeadTranslationalSymmetry, nullptr, kKopCodesBeadTranslationalSymmetry},
    {"kopC_CombinedTermDesignResponse",
     "A design response combined from other design responses.",
     kKopDescCombinedTermDesignResponse},
    {"kopC_CombinedTermRequest",
     "The request of a combined-term design response: other design responses combined by a method.",
     kKopDescCombinedTermRequest, nullptr, kKopCodesCombinedTermRequest},
    {"kopC_CombinedVariable",
     "A variable combined from other variables.",
     kKopDescCombinedVariable, nullptr, kKopCodesCombinedVariable},
    {"kopC_CyclicSymmetry",
     "Keeps a topology design repeating itself in sectors about an axis.",
     kKopDescCyclicSymmetry, nullptr, kKopCodesCyclicSymmetry},
    {"kopC_DemoldControl",
     "Keeps a topology design free of undercuts along a pull direction.",
     kKopDescDemoldControl, nullptr, kKopCodesDemoldControl},
    {"kopC_DistanceControl",
     "Keeps the surface of a shape design at a distance from a reference region.",
     kKopDescDistanceControl, nullptr, kKopCodesDistanceControl},
    {"kopC_DrillControl",
     "Keeps a topology design drillable along a pull direction.",
     kKopDescDrillControl, nullptr, kKopCodesDrillControl},
    {"kopC_FixedRegion",
     "Nodes of a shape or bead design held in some directions.",
     kKopDescFixedRegion, nullptr, kKopCodesFixedRegion},
    {"kopC_FrozenArea",
     "A region the optimizer leaves as it is.",
     kKopDescFrozenArea},
    {"kopC_GrowthRestriction",
     "Limits how far the nodes of a shape design grow or shrink.",
     kKopDescGrowthRestriction, nullptr, kKopCodesGrowthRestriction},
    {"kopC_LocalStopCondition",
     "A local stop condition of a shape task: a result compared with its value in a reference "
     "design cycle.",
     kKopDescLocalStopCondition, nullptr, kKopCodesLocalStopCondition},
    {"kopC_MemberSize",
     "A bound on the thickness of the members a topology task builds.",
     kKopDescMemberSize, nullptr, kKopCodesMemberSize},
    {"kopC_MemberSizeRange",
     "Bounds the width of the members of a topology design from both sides.",
     kKopDescMemberSizeRange, nullptr, kKopCodesMemberSizeRange},
    {"kopC_Objective",
     "One entry of an objective function: a design response with its weight and reference value.",
     kKopDescObjective, nullptr, kKopCodesObjective},
    {"kopC_OrimConstraint",
     "The constraint of the optimization module: a design response, a comparison and a value.",
     kKopDescOrimConstraint, nullptr, kKopCodesOrimConstraint},
    {"kopC_OrimObjectiveFunction",
     "The objective function of the optimization module: a target over a list of objectives.",
     kKopDescOrimObjectiveFunction, nullptr, kKopCodesOrimObjectiveFunction},
    {"kopC_OrimStopCondition",
     "A global stop condition: the run stops when a design response compares so with a value.",
     kKopDescOrimStopCondition, nullptr, kKopCodesOrimStopCondition},
    {"kopC_OrimTask",
     "The task of the optimization module: the algorithm and the settings every kind shares.",
     kKopDescOrimTask, "kopC_Task"},
    {"kopC_OverhangControl",
     "Limits the overhang a topology design may build, for additive manufacturing.",
     kKopDescOverhangControl, nullptr, kKopCodesOverhangControl},
    {"kopC_PenetrationCheck",
     "Keeps the nodes of a shape design from moving through a surface.",
     kKopDescPenetrationCheck},
    {"kopC_PlanarSymmetry",
     "Keeps a design symmetric about a plane of a coordinate system.",
     kKopDescPlanarSymmetry},
    {"kopC_PointSymmetry",
     "Keeps a topology design symmetric about a point.",
     kKopDescPointSymmetry},
    {"kopC_RibControl",
     "Shapes the ribs a bead task builds.",
     kKopDescRibControl, nullptr, kKopCodesRibControl},
    {"kopC_RotationalSymmetry",
     "Keeps a design repeating itself by an angle about an axis.",
     kKopDescRotationalSymmetry, nullptr, kKopCodesRotationalSymmetry},
    {"kopC_ShapeCyclicSymmetry",
     "Keeps a shape design repeating itself in sectors about an axis.",
     kKopDescShapeCyclicSymmetry, nullptr, kKopCodesShapeCyclicSymmetry},
    {"kopC_ShapeDemoldControl",
     "Keeps a shape design free of undercuts along a pull direction.",
     kKopDescShapeDemoldControl, nullptr, kKopCodesShapeDemoldControl},
    {"kopC_ShapeMemberSize",
     "A bound on the size of the members of a shape design.",
     kKopDescShapeMemberSize, nullptr, kKopCodesShapeMemberSize},
    {"kopC_ShapePlanarSymmetry",
     "Keeps a shape design symmetric about a plane of a coordinate system.",
     kKopDescShapePlanarSymmetry},
};
}  // namespace

std::span<const cls_ClassDescription> kopC_Descriptions1Table() { return kKopDescriptions1; }

void kopC_RegisterDescriptions() {
  const cls_ErrorMessageFn messages = [](int code) { return kopC_ErrorMessage(static_cast<kopC_ErrorEnm>(code)); };
  cls_RegisterDescriptions("kop", kopC_Descriptions1Table(), messages);
  cls_RegisterDescriptions("kop", kopC_Descriptions2Table(), messages);
}
void kopC_UnregisterDescriptions() { cls_UnregisterDescriptions("kop"); }
