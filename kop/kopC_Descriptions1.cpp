#include "kop/kopC_Descriptions.h"
#include "kop/kopC_assert.h"

// What the classes of the module and their members mean, by scripting name.
namespace {
constexpr cls_MemberDescription kKopDescBeadCyclicSymmetry[] = {
    {"region", "The region it applies to"},
    {"repetitiveSectors", "Number of identical sectors the design repeats in about the axis"},
    {"angle", "Angle of one sector about the axis (degrees, at least 0, below 360)"},
};
constexpr int kKopCodesBeadCyclicSymmetry[] = {35};
constexpr cls_MemberDescription kKopDescBeadFixedRegion[] = {
    {"region", "The nodes held"},
    {"u1", "Whether displacement along direction 1 is constrained"},
    {"u2", "Whether displacement along direction 2 is constrained"},
    {"u3", "Whether displacement along direction 3 is constrained"},
};
constexpr int kKopCodesBeadFixedRegion[] = {126};
constexpr cls_MemberDescription kKopDescBeadFrozenArea[] = {
    {"region", "The nodes the bead task leaves where they are"},
};
constexpr cls_MemberDescription kKopDescBeadGrowth[] = {
    {"region", "The region it applies to"},
    {"growth",
     "Farthest the nodes may move outward (at least 0; the largest double: no bound; growth, "
     "shrink or both must be set)"},
    {"shrink", "Farthest the nodes may move inward (at least 0; the largest double: no bound)"},
};
constexpr int kKopCodesBeadGrowth[] = {61, 59, 60};
constexpr cls_MemberDescription kKopDescBeadPenetrationCheck[] = {
    {"region", "The region it applies to"},
    {"penetrationCheckRegion", "The surface the nodes of the design must not move through"},
};
constexpr cls_MemberDescription kKopDescBeadPlanarSymmetry[] = {
    {"region", "The region it applies to"},
    {"axis", "The axis of the coordinate system normal to the plane of symmetry"},
};
constexpr cls_MemberDescription kKopDescBeadPointSymmetry[] = {
    {"region", "The region it applies to"},
};
constexpr cls_MemberDescription kKopDescBeadRotationalSymmetry[] = {
    {"region", "The region it applies to"},
    {"angle", "Angle by which the design repeats about the axis (degrees, above 2, below 360)"},
};
constexpr int kKopCodesBeadRotationalSymmetry[] = {16};
constexpr cls_MemberDescription kKopDescBeadTask[] = {
    {"frozenBoundaryConditionRegion",
     "A region of boundary conditions whose nodes stay where they are"},
    {"nodeUpdateStrategy",
     "How boldly the nodes move from cycle to cycle: normal, conservative (small steps) or "
     "aggressive (large steps)"},
    {"nodalMoveLimit", "Farthest a node moves in one design cycle (above 0)"},
    {"numTrackedModes",
     "Number of eigenmodes followed from cycle to cycle by mode tracking (at least 0; 0: none)"},
    {"modeTrackingRegion", "The region over which mode shapes are compared for mode tracking"},
    {"updateNodalNormals",
     "Whether the node normals the beads grow along are recomputed every design cycle"},
    {"flipNormalDir", "Whether the beads grow against the shell normals instead of along them"},
    {"beadWidth", "Width of the beads (above 0)"},
    {"minStress", "Smallest stress the bead design takes into account (at least 0)"},
    {"maxMembraneStress", "Largest membrane stress the bead design allows (at least 0)"},
    {"curveSmooth", "Smoothing of the bead outlines along the surface (above 0)"},
    {"nodeSmooth", "Smoothing of the node movements between neighbours (above 0)"},
    {"beadIter", "Number of bead iterations per design cycle (at least 1)"},
    {"beadPerturbation",
     "Size of the node perturbation with which bead sensitivities are computed (above 0)"},
    {"filterRadius",
     "Radius of the filter that smooths the sensitivities (the largest double: the solver's "
     "default)"},
    {"isSensCalcOnlyOnDesignNodes", "Whether sensitivities are computed at the design nodes only"},
    {"areBCRegionsFrozen", "Whether the nodes of boundary-condition regions stay where they are"},
    {"updateShapeBasisVectors",
     "Whether the shape basis vectors are recomputed every design cycle or kept as at the start"},
};
constexpr int kKopCodesBeadTask[] = {
    43, 65, 117, 118, 119, 120, 121, 122, 123, 130, 131, 2, 4, 105, 106, 0, 137, 115};
constexpr cls_MemberDescription kKopDescBeadTranslationalSymmetry[] = {
    {"region", "The region it applies to"},
    {"translation", "Distance after which the design repeats along the direction (not 0)"},
};
constexpr int kKopCodesBeadTranslationalSymmetry[] = {17};
constexpr cls_MemberDescription kKopDescCombinedTermDesignResponse[] = {
    {"request", "Its request: the design responses it combines and how"},
};
constexpr cls_MemberDescription kKopDescCombinedTermRequest[] = {
    {"terms",
     "The names of the design responses combined, in order (of variables with useVariableTerms); "
     "the method sets how many"},
    {"weights",
     "The weight of each term, in the order of the terms (one per term with WEIGHTED_ADD)"},
    {"method",
     "How the terms combine; it sets the number of terms: 1 to 10 (ADD, MULTIPLY, MINIMUM, "
     "MAXIMUM, WEIGHTED_ADD), 2 (SUBTRACT, DIVIDE, ABSOLUTE_DIFFERENCE, NTH_ROOT, NTH_POWER), 2 "
     "to 4 (NORMALIZE, NORMALIZE_FIRST), else 1"},
    {"useVariableTerms",
     "Whether the terms name variables of the task instead of design responses"},
    {"filterMaxRadius",
     "Largest radius of the FILTER method (the largest double: the solver's default)"},
    {"filterExponent",
     "Exponent of the distance weighting of the FILTER method (the largest double: the solver's "
     "default)"},
    {"filterRadiusReduction",
     "How much the radius of the FILTER method shrinks from cycle to cycle (the largest double: "
     "the solver's default)"},
    {"lowCutOff", "Lower bound of the CUT_OFF method (at least 0)"},
    {"highCutOff",
     "Upper bound of the CUT_OFF method (at least lowCutOff; the largest double: no bound)"},
};
constexpr int kKopCodesCombinedTermRequest[] = {18, 22, 27, 23, 25, 26, 24, 20, 21};
constexpr cls_MemberDescription kKopDescCombinedVariable[] = {
    {"terms", "The names of the variables combined, in order (at least one)"},
    {"method", "How the terms combine into one value"},
};
constexpr int kKopCodesCombinedVariable[] = {22};
constexpr cls_MemberDescription kKopDescCyclicSymmetry[] = {
    {"region", "The region it applies to"},
    {"repetitiveSectors", "Number of identical sectors the design repeats in about the axis"},
    {"angle", "Angle of one sector about the axis (degrees, at least 0, below 360)"},
};
constexpr int kKopCodesCyclicSymmetry[] = {35};
constexpr cls_MemberDescription kKopDescDemoldControl[] = {
    {"region", "The region it applies to"},
    {"technique",
     "How the part leaves its mold: the parting found automatically (AUTO) or through a point "
     "(POINT), or a stamped part (STAMP, draft angle 0)"},
    {"draftAngle",
     "Draft angle of the walls along the pull direction (degrees, 0 to 20; 0 with STAMP)"},
};
constexpr int kKopCodesDemoldControl[] = {101, 102};
constexpr cls_MemberDescription kKopDescDistanceControl[] = {
    {"region", "The region it applies to"},
    {"referenceRegion", "The region the design surface keeps its distance from"},
    {"distance", "The distance kept from the reference region (at least 0)"},
};
constexpr int kKopCodesDistanceControl[] = {57};
constexpr cls_MemberDescription kKopDescDrillControl[] = {
    {"region", "The region it applies to"},
    {"technique",
     "Where the drill direction starts: found automatically (AUTO), at the vertex of "
     "\"pointRegion\" (POINT), or nowhere (NONE)"},
    {"pointRegion", "A region holding the vertex the drilling starts from (required with POINT)"},
};
constexpr int kKopCodesDrillControl[] = {9};
constexpr cls_MemberDescription kKopDescFixedRegion[] = {
    {"region", "The nodes held"},
    {"u1", "Whether displacement along direction 1 is constrained"},
    {"u2", "Whether displacement along direction 2 is constrained"},
    {"u3", "Whether displacement along direction 3 is constrained"},
};
constexpr int kKopCodesFixedRegion[] = {126};
constexpr cls_MemberDescription kKopDescFrozenArea[] = {
    {"region", "The region the optimizer leaves as it is"},
};
constexpr cls_MemberDescription kKopDescGrowthRestriction[] = {
    {"region", "The region it applies to"},
    {"growth",
     "Farthest the nodes may move outward (at least 0; the largest double: no bound; growth, "
     "shrink or both must be set)"},
    {"shrink", "Farthest the nodes may move inward (at least 0; the largest double: no bound)"},
};
constexpr int kKopCodesGrowthRestriction[] = {61, 59, 60};
constexpr cls_MemberDescription kKopDescLocalStopCondition[] = {
    {"identifier", "The result compared, such as SIG_MISES (required)"},
    {"identifierOperation", "How the values of the result over the region become one value"},
    {"comparisonOperation",
     "How the current value must compare with the reference for the run to stop"},
    {"referenceDesignCycle", "The design cycle whose value is the reference"},
    {"referenceFactor", "Factor on the reference value (required: the largest double is refused)"},
    {"referenceOperation", "How the values of the reference over the region become one value"},
    {"referenceIteration",
     "The iteration within the reference design cycle whose value is the reference"},
    {"region", "The region the result and its reference are read over"},
};
constexpr int kKopCodesLocalStopCondition[] = {5, 14};
constexpr cls_MemberDescription kKopDescMemberSize[] = {
    {"region", "The region it applies to"},
    {"sizeRestriction",
     "Whether the member thickness is bounded from below (MINIMUM) or from above (MAXIMUM); a "
     "condition-based task allows only MINIMUM"},
    {"minThickness", "Smallest member thickness (above 0; the largest double: not bounded)"},
    {"maxThickness",
     "Largest member thickness (above 0, at least minThickness; the largest double: not bounded)"},
};
constexpr int kKopCodesMemberSize[] = {52, 53, 56};
constexpr cls_MemberDescription kKopDescMemberSizeRange[] = {
    {"region", "The region it applies to"},
    {"minWidth", "Smallest member width (above 0; the largest double: not bounded)"},
    {"maxWidth", "Largest member width (above 0; the largest double: not bounded)"},
    {"memberSize", "The member size aimed at (above 0; the largest double: the solver's default)"},
};
constexpr int kKopCodesMemberSizeRange[] = {54, 55, 58};
constexpr cls_MemberDescription kKopDescObjective[] = {
    {"designResponse",
     "The name of the design response the entry minimizes or maximizes (in the task's "
     "designResponses)"},
    {"weight", "Weight of the entry in the objective function"},
    {"referenceValue",
     "Reference value of the response (the largest double: DEFAULT; in a general task all set or "
     "all DEFAULT, in a condition-based one all DEFAULT)"},
    {"referenceValueVariable",
     "A variable that would give the reference value (not yet supported: must stay empty)"},
    {"suppressed",
     "Whether the entry is left out of the objective (one entry at least must stay in)"},
};
constexpr int kKopCodesObjective[] = {100};
constexpr cls_MemberDescription kKopDescOrimConstraint[] = {
    {"designResponse",
     "The name of the design response it bounds (in the task's designResponses; required)"},
    {"restrictionMethod",
     "How the response is bounded: equal to, at most or at least the value, taken as it is "
     "(ABSOLUTE_) or as a fraction of the initial value (RELATIVE_)"},
    {"restrictionValue",
     "The bound: absolute, or a fraction of the initial value with a RELATIVE_ method (a "
     "relative bound on the volume or weight of a topology task: above 0, below 1)"},
};
constexpr int kKopCodesOrimConstraint[] = {0};
constexpr cls_MemberDescription kKopDescOrimObjectiveFunction[] = {
    {"target",
     "Whether the weighted responses are minimized, maximized, or their largest minimized"},
    {"objectives",
     "Its entries, each a design response with its weight (one at least not suppressed; a "
     "condition-based task keeps one unless MINIMIZE_MAXIMUM)"},
};
constexpr int kKopCodesOrimObjectiveFunction[] = {3};
constexpr cls_MemberDescription kKopDescOrimStopCondition[] = {
    {"designResponse", "The name of the design response compared (required)"},
    {"comparisonOperation",
     "How the response must compare with the reference value for the run to stop"},
    {"referenceValue", "The value the response is compared with"},
};
constexpr int kKopCodesOrimStopCondition[] = {5};
constexpr cls_MemberDescription kKopDescOrimTask[] = {
    {"algorithm",
     "The optimizer: condition-based (formerly controller-based) or general (sensitivity-based; "
     "several settings need it)"},
    {"tessarSensitivities",
     "Whether the Tessar sensitivity method is used (general algorithm only)"},
    {"groupOperator",
     "Whether the group operator is applied to the design (general algorithm only)"},
};
constexpr cls_MemberDescription kKopDescOverhangControl[] = {
    {"region", "The region it applies to"},
    {"overhangAngle", "The overhang angle the design may not exceed (degrees, above 0)"},
    {"radius", "Radius of the overhang check (above 0; the largest double: the solver's default)"},
    {"filterRadius",
     "Radius of the filter of the overhang check (above 0; the largest double: the solver's "
     "default)"},
};
constexpr int kKopCodesOverhangControl[] = {132, 133, 134};
constexpr cls_MemberDescription kKopDescPenetrationCheck[] = {
    {"region", "The region it applies to"},
    {"penetrationCheckRegion", "The surface the nodes of the design must not move through"},
};
constexpr cls_MemberDescription kKopDescPlanarSymmetry[] = {
    {"region", "The region it applies to"},
    {"axis", "The axis of the coordinate system normal to the plane of symmetry"},
};
constexpr cls_MemberDescription kKopDescPointSymmetry[] = {
    {"region", "The region it applies to"},
};
constexpr cls_MemberDescription kKopDescRibControl[] = {
    {"region", "The region it applies to"},
    {"ribThickness", "Thickness of the ribs (above 0)"},
    {"ribDistance", "Distance between neighbouring ribs (above 0)"},
};
constexpr int kKopCodesRibControl[] = {135, 136};
constexpr cls_MemberDescription kKopDescRotationalSymmetry[] = {
    {"region", "The region it applies to"},
    {"angle", "Angle by which the design repeats about the axis (degrees, above 2, below 360)"},
};
constexpr int kKopCodesRotationalSymmetry[] = {16};
constexpr cls_MemberDescription kKopDescShapeCyclicSymmetry[] = {
    {"region", "The region it applies to"},
    {"repetitiveSectors", "Number of identical sectors the design repeats in about the axis"},
    {"angle", "Angle of one sector about the axis (degrees, at least 0, below 360)"},
};
constexpr int kKopCodesShapeCyclicSymmetry[] = {35};
constexpr cls_MemberDescription kKopDescShapeDemoldControl[] = {
    {"region", "The region it applies to"},
    {"drawAngle",
     "Draw angle of the walls along the pull direction (degrees, at least 0, below 45)"},
    {"undercutTolerance", "Depth of undercut that is tolerated (at least 0)"},
    {"collisionCheckTolerance", "Distance within which two surfaces count as colliding (above 0)"},
};
constexpr int kKopCodesShapeDemoldControl[] = {10, 11, 12};
constexpr cls_MemberDescription kKopDescShapeMemberSize[] = {
    {"region", "The region it applies to"},
    {"sizeRestriction",
     "Whether the member size is bounded from below (MINIMUM) or from above (MAXIMUM); NONE is "
     "refused"},
    {"minThickness", "Smallest member thickness (above 0; the largest double: not bounded)"},
    {"maxThickness", "Largest member thickness (above 0; the largest double: not bounded)"},
};
constexpr int kKopCodesShapeMemberSize[] = {8, 52, 53};
constexpr cls_MemberDescription kKopDescShapePlanarSymmetry[] = {
    {"region", "The region it applies to"},
    {"axis", "The axis of the coordinate system normal to the plane of symmetry"},
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
