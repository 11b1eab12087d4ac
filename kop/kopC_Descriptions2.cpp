#include "kop/kopC_Descriptions.h"

// What the classes of the module and their members mean, by scripting name.
namespace {
constexpr cls_MemberDescription kKopDescShapePointSymmetry[] = {
    {"region", "The region it applies to"},
};
constexpr cls_MemberDescription kKopDescShapeRotationalSymmetry[] = {
    {"region", "The region it applies to"},
    {"angle", "Angle (degrees)"},
};
constexpr int kKopCodesShapeRotationalSymmetry[] = {16};
constexpr cls_MemberDescription kKopDescShapeTask[] = {
    {"growthScaleFactor", "Growth scale factor"},
    {"shrinkScaleFactor", "Shrink scale factor"},
    {"curvatureSmoothingEdgeLength", "Curvature smoothing edge length (not negative)"},
    {"filterMaxRadius", "Filter max radius"},
    {"filterRadiusReduction", "Filter radius reduction"},
    {"filterExponent", "Filter exponent"},
    {"tolerance", "Tolerance"},
    {"midsideInterpolation", "Midside interpolation"},
    {"updateShapeBasisVectors", "Update shape basis vectors"},
    {"absoluteStepSizeControl", "Absolute step size control"},
    {"equalityConstraintTolerance", "Equality constraint tolerance"},
    {"meshSmoothingRegionMethod", "Literals include \"TASK_REGION_LAYERS\""},
    {"meshSmoothingStrategy", "Literals include \"CONSTRAINED_LAPLACIAN\""},
    {"nodeLayersApproach", "Node layers approach"},
    {"constrainedLaplacianConvergenceLevel", "\"NORMAL\", \"CONSERVATIVE\", \"AGGRESSIVE\""},
    {"geometricRestrictionEvaluationFrequency", "Literals include \"EVERY_CYCLE\""},
    {"targetMeshQuality", "Target mesh quality"},
    {"smoothingRegion", "Smoothing region"},
    {"layerReferenceRegion", "Layer reference region"},
    {"reportPoorQualityElements", "Report poor quality elements"},
    {"reportQualityViolation", "Report quality violation"},
    {"haltUponViolation", "Halt upon violation (needs reportQualityViolation)"},
    {"numFreeNodeLayers", "Num free node layers (not negative)"},
    {"numSmoothedElementLayers", "Num smoothed element layers (greater than 0)"},
    {"useFixedNodeLayers", "Use fixed node layers"},
    {"numFixedNodeLayers", "Num fixed node layers"},
    {"featureRecognitionAngle", "Feature recognition angle (not negative)"},
    {"triMinAngle", "Tri min angle (0 to 59)"},
    {"triMaxAngle", "Tri max angle (61 to 180)"},
    {"quadMinAngle", "Quad min angle (0 to 89)"},
    {"quadMaxAngle", "Quad max angle (91 to 180)"},
    {"quadTaper", "Quad taper (not negative)"},
    {"quadSkew", "Quad skew (not negative)"},
    {"tetMinAspect", "Tet min aspect (0.00177 to 1.3)"},
    {"tetMaxAspect", "Tet max aspect (1.36 to 999)"},
    {"tetAspectRatio", "Tet aspect ratio (not negative)"},
    {"tetSkew", "Tet skew (not negative)"},
    {"freezeBoundaryConditionRegions", "Freeze boundary condition regions"},
    {"presumeFeasibleBCRegionAtStart", "Presume feasible BC region at start"},
    {"numTrackedModes", "Num tracked modes"},
    {"modeTrackingRegion", "Mode tracking region"},
    {"activateDurability", "Activate durability"},
    {"durabilityInputfile", "Durability inputfile"},
    {"additionalDurabilityFiles", "Additional durability files"},
    {"durabilitySolver", "Literals include \"FE_SAFE\""},
};
constexpr int kKopCodesShapeTask[] = {71, 72, 73, 74, 75, 76, 77, 78, 79, 80, 81, 82, 83, 84, 95, 96, 33, 34};
constexpr cls_MemberDescription kKopDescShapeTranslationalSymmetry[] = {
    {"region", "The region it applies to"},
    {"translation", "Translation"},
};
constexpr int kKopCodesShapeTranslationalSymmetry[] = {17};
constexpr cls_MemberDescription kKopDescSingleTermDesignResponse[] = {
    {"request", "Request"},
};
constexpr cls_MemberDescription kKopDescSingleTermRequest[] = {
    {"identifier", "Identifier"},
    {"operation", "Operation"},
    {"drivingRegion", "Driving region"},
    {"secondaryRegion", "Secondary region"},
    {"stepOperation", "Step operation"},
    {"stepOptions", "Step options (list of StepOption)"},
    {"shellLayer", "Shell layer"},
    {"outputFormat", "Output format"},
    {"deviationReferenceVariable", "Deviation reference variable"},
    {"deviationReferenceValue", "Deviation reference value"},
};
constexpr int kKopCodesSingleTermRequest[] = {5, 6, 90, 92, 93, 98, 110, 68, 7, 129, 87, 125};
constexpr cls_MemberDescription kKopDescSingleVariable[] = {
    {"identifier", "Identifier"},
    {"operation", "Operation"},
    {"region", "The region it applies to"},
};
constexpr int kKopCodesSingleVariable[] = {5};
constexpr cls_MemberDescription kKopDescSizingClusterAreas[] = {
    {"region", "The region it applies to"},
};
constexpr cls_MemberDescription kKopDescSizingCyclicSymmetry[] = {
    {"region", "The region it applies to"},
    {"repetitiveSectors", "Repetitive sectors"},
    {"angle", "Angle (degrees)"},
};
constexpr int kKopCodesSizingCyclicSymmetry[] = {35};
constexpr cls_MemberDescription kKopDescSizingFrozenArea[] = {
    {"region", "The region it applies to"},
};
constexpr cls_MemberDescription kKopDescSizingPlanarSymmetry[] = {
    {"region", "The region it applies to"},
    {"axis", "Axis"},
};
constexpr cls_MemberDescription kKopDescSizingPointSymmetry[] = {
    {"region", "The region it applies to"},
};
constexpr cls_MemberDescription kKopDescSizingRotationalSymmetry[] = {
    {"region", "The region it applies to"},
    {"angle", "Angle (degrees)"},
};
constexpr int kKopCodesSizingRotationalSymmetry[] = {16};
constexpr cls_MemberDescription kKopDescSizingTask[] = {
    {"freezeLoadRegions", "Freeze load regions"},
    {"freezeBoundaryConditionRegions", "Freeze boundary condition regions"},
    {"thicknessUpdateStrategy", "Thickness update strategy"},
    {"thicknessMoveLimit", "Thickness move limit (greater than 0)"},
    {"filterRadius", "Filter radius"},
    {"numFulfilledStopCriteria", "Num fulfilled stop criteria (1 or 2)"},
    {"objectiveFunctionDeltaStopCriteria", "Objective function delta stop criteria (not negative)"},
    {"elementThicknessDeltaStopCriteria", "Element thickness delta stop criteria (not negative)"},
    {"stopCriteriaDesignCycle", "Stop criteria design cycle (at least 3)"},
    {"stopCriteriaIteration", "The stop criteria design cycle under its stored name (at least 3)"},
    {"modeTrackingRegion", "Mode tracking region"},
    {"numTrackedModes", "Num tracked modes"},
};
constexpr int kKopCodesSizingTask[] = {111, 44, 46, 47, 113, 49, 65};
constexpr cls_MemberDescription kKopDescSlideRegion[] = {
    {"region", "The region it applies to"},
};
constexpr cls_MemberDescription kKopDescStampControl[] = {
    {"region", "The region it applies to"},
    {"draftAngle", "Draft angle"},
};
constexpr int kKopCodesStampControl[] = {101};
constexpr cls_MemberDescription kKopDescStepOption[] = {
    {"model", "Model"},
    {"multipleStep", "Multiple step"},
    {"loadCase", "Load case"},
    {"procedureCategory", "Procedure category"},
    {"useAllModes", "Use all modes"},
    {"lowerMode", "Lower mode"},
    {"upperMode", "Upper mode"},
    {"modes", "Modes"},
};
constexpr int kKopCodesStepOption[] = {125, 86, 30, 31, 32};
constexpr cls_MemberDescription kKopDescTask[] = {
    {"suppressed", "Whether the task is suppressed (kept but not run)"},
    {"region", "The region it applies to"},
    {"optimizationConstraints", "The task's optimization constraints, by name"},
    {"designResponses", "The task's design responses, by name"},
    {"geometricRestrictions", "The task's geometric restrictions, by name"},
    {"objectiveFunctions", "The task's objective functions, by name"},
    {"stopConditions", "The task's stop conditions, by name"},
    {"variables", "The task's design variables, by name"},
};
constexpr cls_MemberDescription kKopDescThicknessControl[] = {
    {"region", "The region it applies to"},
    {"minThickness", "Min thickness"},
    {"maxThickness", "Max thickness"},
};
constexpr int kKopCodesThicknessControl[] = {112, 52, 53, 56};
constexpr cls_MemberDescription kKopDescTopologyTask[] = {
    {"freezeLoadRegions", "Freeze load regions"},
    {"freezeBoundaryConditionRegions", "Freeze boundary condition regions"},
    {"multipleProcessors", "Multiple processors"},
    {"numDesignCycles", "Num design cycles"},
    {"numFulfilledStopCriteria", "Num fulfilled stop criteria"},
    {"stopCriteriaDesignCycle", "Stop criteria design cycle"},
    {"numTrackedModes", "Num tracked modes"},
    {"firstCycleDeletedVolume", "First cycle deleted volume"},
    {"initialDensity", "Initial density"},
    {"minDensity", "Min density"},
    {"maxDensity", "Max density"},
    {"densityMoveLimit", "Density move limit"},
    {"filterRadius", "Filter radius"},
    {"materialInterpolationPenalty", "Material interpolation penalty"},
    {"objectiveFunctionDeltaStopCriteria", "Objective function delta stop criteria"},
    {"elementDensityDeltaStopCriteria", "Element density delta stop criteria"},
    {"softDeletionRadius", "Soft deletion radius"},
    {"structuralMassDamping", "Structural mass damping"},
    {"stiffnessMassDamping", "Stiffness mass damping"},
    {"viscousMassDamping", "Viscous mass damping"},
    {"viscousStiffnessDamping", "Viscous stiffness damping"},
    {"frequencySpectrumWeight", "Frequency spectrum weight"},
    {"softDeletionRegion", "Soft deletion region"},
    {"modeTrackingRegion", "Mode tracking region"},
    {"stepSize",
     "First literal \"DYNAMIC\" (then \"VERY_SMALL\", \"SMALL\", \"MODERATE\", \"MEDIUM\", "
     "\"LARGE\")"},
    {"firstCycleDeletedVolumeTechnique", "0 = off"},
    {"densityUpdateStrategy", "Density update strategy"},
    {"materialInterpolationTechnique", "Material interpolation technique"},
    {"softDeletionMethod", "Values 0 to 5"},
    {"softDeletionThreshold", "Soft deletion threshold"},
};
constexpr int kKopCodesTopologyTask[] = {40, 41, 42, 43, 70, 39, 69, 44, 45, 46, 47, 48, 49, 50, 51, 64, 63, 62, 65, 66, 103, 104};
constexpr cls_MemberDescription kKopDescTranslationalSymmetry[] = {
    {"region", "The region it applies to"},
    {"translation", "Translation"},
};
constexpr int kKopCodesTranslationalSymmetry[] = {17};
constexpr cls_MemberDescription kKopDescTurnControl[] = {
    {"region", "The region it applies to"},
};
constexpr cls_ClassDescription kKopDescriptions2[] = {
    {"kopC_ShapePointSymmetry",
     "Keeps a shape design symmetric about a point.",
     kKopDescShapePointSymmetry},
    {"kopC_ShapeRotationalSymmetry",
     "Keeps a shape design repeating itself by an angle about an axis.",
     kKopDescShapeRotationalSymmetry, nullptr, kKopCodesShapeRotationalSymmetry},
    {"kopC_ShapeTask",
     "A shape optimization task: surface nodes of the design region move to improve the design.",
     kKopDescShapeTask, "kopC_OrimTask", kKopCodesShapeTask},
    {"kopC_ShapeTranslationalSymmetry",
     "Keeps a shape design repeating itself along a direction.",
     kKopDescShapeTranslationalSymmetry, nullptr, kKopCodesShapeTranslationalSymmetry},
    {"kopC_SingleTermDesignResponse",
     "A design response read from one result identifier.",
     kKopDescSingleTermDesignResponse},
    {"kopC_SingleTermRequest",
     "The request of a single-term design response: one identifier over a region and steps.",
     kKopDescSingleTermRequest, nullptr, kKopCodesSingleTermRequest},
    {"kopC_SingleVariable",
     "A variable read from one result identifier over a region.",
     kKopDescSingleVariable, nullptr, kKopCodesSingleVariable},
    {"kopC_SizingClusterAreas",
     "Shell elements of a sizing design that keep one common thickness.",
     kKopDescSizingClusterAreas},
    {"kopC_SizingCyclicSymmetry",
     "Keeps a sizing design repeating itself in sectors about an axis.",
     kKopDescSizingCyclicSymmetry, nullptr, kKopCodesSizingCyclicSymmetry},
    {"kopC_SizingFrozenArea",
     "Shell elements a sizing task leaves at their thickness.",
     kKopDescSizingFrozenArea},
    {"kopC_SizingPlanarSymmetry",
     "Keeps a sizing design symmetric about a plane of a coordinate system.",
     kKopDescSizingPlanarSymmetry},
    {"kopC_SizingPointSymmetry",
     "Keeps a sizing design symmetric about a point.",
     kKopDescSizingPointSymmetry},
    {"kopC_SizingRotationalSymmetry",
     "Keeps a sizing design repeating itself by an angle about an axis.",
     kKopDescSizingRotationalSymmetry, nullptr, kKopCodesSizingRotationalSymmetry},
    {"kopC_SizingTask",
     "A sizing optimization task: the thicknesses of shell elements change.",
     kKopDescSizingTask, "kopC_OrimTask", kKopCodesSizingTask},
    {"kopC_SlideRegion",
     "Nodes of a shape design that may move only along its surface.",
     kKopDescSlideRegion},
    {"kopC_StampControl",
     "Keeps a topology design formable by stamping along a pull direction.",
     kKopDescStampControl, nullptr, kKopCodesStampControl},
    {"kopC_StepOption",
     "The steps, load cases and modes a single-term request reads.",
     kKopDescStepOption, nullptr, kKopCodesStepOption},
    {"kopC_Task",
     "A task: its region and the six containers of its items.",
     kKopDescTask},
    {"kopC_ThicknessControl",
     "Bounds the thicknesses a sizing task may give its shell elements.",
     kKopDescThicknessControl, nullptr, kKopCodesThicknessControl},
    {"kopC_TopologyTask",
     "A topology optimization task: material is taken away where the design needs none.",
     kKopDescTopologyTask, "kopC_OrimTask", kKopCodesTopologyTask},
    {"kopC_TranslationalSymmetry",
     "Keeps a topology design repeating itself along a direction.",
     kKopDescTranslationalSymmetry, nullptr, kKopCodesTranslationalSymmetry},
    {"kopC_TurnControl",
     "Keeps a topology design turnable on a lathe about an axis.",
     kKopDescTurnControl},
};
}  // namespace

std::span<const cls_ClassDescription> kopC_Descriptions2Table() { return kKopDescriptions2; }
