#include "kop/kopC_Descriptions.h"

// What the classes of the module and their members mean, by scripting name.
namespace {
constexpr cls_MemberDescription kKopDescShapePointSymmetry[] = {
    {"region", "The region it applies to"},
};
constexpr cls_MemberDescription kKopDescShapeRotationalSymmetry[] = {
    {"region", "The region it applies to"},
    {"angle", "Angle by which the design repeats about the axis (degrees, above 2, below 360)"},
};
constexpr int kKopCodesShapeRotationalSymmetry[] = {16};
constexpr cls_MemberDescription kKopDescShapeTask[] = {
    {"growthScaleFactor", "Scale factor on how far nodes move outward in a design cycle"},
    {"shrinkScaleFactor", "Scale factor on how far nodes move inward in a design cycle"},
    {"curvatureSmoothingEdgeLength",
     "Edge length over which the surface curvature is smoothed (at least 0, checked for a "
     "condition-based task; the largest double: the solver's default)"},
    {"filterMaxRadius",
     "Largest radius of the filter that smooths the sensitivities (the largest double: the "
     "solver's default)"},
    {"filterRadiusReduction",
     "How much the filter radius shrinks from cycle to cycle (the largest double: the solver's "
     "default)"},
    {"filterExponent",
     "Exponent of the distance weighting of the filter (the largest double: the solver's "
     "default)"},
    {"tolerance",
     "Tolerance of the node movement of a condition-based task (at least 0, checked then)"},
    {"midsideInterpolation",
     "How midside nodes follow: placed from the new corner positions (POSITIONS) or moved by the "
     "optimization displacements"},
    {"updateShapeBasisVectors",
     "Whether the shape basis vectors are recomputed every design cycle or kept as at the start"},
    {"absoluteStepSizeControl",
     "Which node movement sets the step size: the smallest (MINIMUM) or the average"},
    {"equalityConstraintTolerance",
     "How near an equality constraint must come to its value to count as met (the largest "
     "double: the solver's default)"},
    {"meshSmoothingRegionMethod",
     "Which elements are smoothed: layers counted into the task region, the elements of "
     "\"smoothingRegion\" (REGION), or layers counted from \"layerReferenceRegion\" "
     "(NUMBER_OF_LAYERS)"},
    {"meshSmoothingStrategy",
     "How the mesh is smoothed after the nodes move: not at all, by constrained Laplacian "
     "smoothing, or by local gradients (a general task checks the mesh quality limits unless "
     "NONE)"},
    {"nodeLayersApproach",
     "How the free node layers are found: by count (numFreeNodeLayers) or by feature recognition "
     "(featureRecognitionAngle)"},
    {"constrainedLaplacianConvergenceLevel",
     "How strictly constrained Laplacian smoothing converges: normal, conservative or aggressive"},
    {"geometricRestrictionEvaluationFrequency",
     "How often the geometric restrictions are evaluated: every cycle, or at a low, medium or "
     "high rate"},
    {"targetMeshQuality", "The mesh quality smoothing aims at (NONE: no target)"},
    {"smoothingRegion", "The region smoothed with REGION (required then)"},
    {"layerReferenceRegion",
     "The region the smoothed layers are counted from with NUMBER_OF_LAYERS (required then)"},
    {"reportPoorQualityElements", "Whether elements of poor quality are reported"},
    {"reportQualityViolation",
     "Whether violations of the quality limits are reported (needed by haltUponViolation)"},
    {"haltUponViolation",
     "Whether the run stops when a quality limit is violated (needs reportQualityViolation)"},
    {"numFreeNodeLayers",
     "Layers of nodes beside the design surface that move freely with it (at least 0)"},
    {"numSmoothedElementLayers",
     "Layers of elements smoothed by local gradients (above 0 with LOCAL_GRADIENT)"},
    {"useFixedNodeLayers",
     "Whether layers of nodes at the border of the smoothed region stay where they are"},
    {"numFixedNodeLayers", "Layers of nodes that stay where they are with useFixedNodeLayers"},
    {"featureRecognitionAngle",
     "Angle between faces above which an edge counts as a feature, with FEATURE_RECOGNITION "
     "(degrees, at least 0)"},
    {"triMinAngle", "Smallest interior angle a triangle may have (degrees, 0 to 59)"},
    {"triMaxAngle", "Largest interior angle a triangle may have (degrees, 61 to 180)"},
    {"quadMinAngle", "Smallest interior angle a quadrilateral may have (degrees, 0 to 89)"},
    {"quadMaxAngle", "Largest interior angle a quadrilateral may have (degrees, 91 to 180)"},
    {"quadTaper", "Largest taper a quadrilateral may have (at least 0)"},
    {"quadSkew", "Largest skew a quadrilateral may have (at least 0)"},
    {"tetMinAspect", "Smallest aspect ratio a tetrahedron may have (0.00177 to 1.3)"},
    {"tetMaxAspect", "Largest aspect ratio a tetrahedron may have (1.36 to 999)"},
    {"tetAspectRatio", "Aspect ratio limit of a tetrahedron (at least 0)"},
    {"tetSkew", "Largest skew a tetrahedron may have (at least 0)"},
    {"freezeBoundaryConditionRegions",
     "Whether the nodes where boundary conditions act stay where they are"},
    {"presumeFeasibleBCRegionAtStart",
     "Whether the boundary-condition regions are taken as feasible at the start of the run"},
    {"numTrackedModes",
     "Number of eigenmodes followed from cycle to cycle by mode tracking (at least 0; 0: none)"},
    {"modeTrackingRegion", "The region over which mode shapes are compared for mode tracking"},
    {"activateDurability",
     "Whether durability results of a durability solver take part in the optimization"},
    {"durabilityInputfile", "The input file of the durability solver (with activateDurability)"},
    {"additionalDurabilityFiles", "Further files the durability solver reads"},
    {"durabilitySolver", "The durability solver that evaluates the durability results"},
};
constexpr int kKopCodesShapeTask[] = {
    71, 72, 73, 74, 75, 76, 77, 78, 79, 80, 81, 82, 83, 84, 95, 96, 33, 34, 130, 131, 2, 4, 105,
    106, 0, 137};
constexpr cls_MemberDescription kKopDescShapeTranslationalSymmetry[] = {
    {"region", "The region it applies to"},
    {"translation", "Distance after which the design repeats along the direction (not 0)"},
};
constexpr int kKopCodesShapeTranslationalSymmetry[] = {17};
constexpr cls_MemberDescription kKopDescSingleTermDesignResponse[] = {
    {"request",
     "Its request: the result it reads, over which region and steps, and how the values become "
     "one"},
};
constexpr cls_MemberDescription kKopDescSingleTermRequest[] = {
    {"identifier",
     "The result the response reads, such as DISP_ABS, SIG_MISES, STRAIN_ENERGY, VOLUME or "
     "WEIGHT (required)"},
    {"operation",
     "How the values over the region become one (AVERAGE is refused; a global result such as "
     "VOLUME or STRAIN_ENERGY takes neither MINIMUM nor MAXIMUM, any other result not "
     "NOT_APPLICABLE)"},
    {"drivingRegion",
     "The region the result is read over (empty: the whole model, which ENERGY_STIFF_MEASURE "
     "needs and a layered result with MINIMUM or MAXIMUM may not have)"},
    {"secondaryRegion", "A second region, for results read relative to another region"},
    {"stepOperation", "How the values of several steps, load cases or modes become one"},
    {"stepOptions",
     "The steps, load cases and modes read (none for VOLUME, WEIGHT, center of gravity and "
     "inertia; at least one for every other result)"},
    {"shellLayer",
     "Which layer of a shell is read: NONE, or a layer for stress and strain results only"},
    {"outputFormat",
     "What the response writes: nothing, its values, or its values and their history"},
    {"deviationReferenceVariable",
     "What a deviation is measured from: the maximum (DEVIATION_FROM_VARIABLE is not yet "
     "supported)"},
    {"deviationReferenceValue",
     "The reference of the deviation (above 0; the largest double: not set)"},
};
constexpr int kKopCodesSingleTermRequest[] = {5, 6, 90, 92, 93, 98, 110, 68, 7, 129, 87, 125};
constexpr cls_MemberDescription kKopDescSingleVariable[] = {
    {"identifier", "The result the variable reads, such as SIG_MISES (required)"},
    {"operation", "How the values over the region become one"},
    {"region", "The region the result is read over"},
};
constexpr int kKopCodesSingleVariable[] = {5};
constexpr cls_MemberDescription kKopDescSizingClusterAreas[] = {
    {"region", "The shell elements that keep one common thickness"},
};
constexpr cls_MemberDescription kKopDescSizingCyclicSymmetry[] = {
    {"region", "The region it applies to"},
    {"repetitiveSectors", "Number of identical sectors the design repeats in about the axis"},
    {"angle", "Angle of one sector about the axis (degrees, at least 0, below 360)"},
};
constexpr int kKopCodesSizingCyclicSymmetry[] = {35};
constexpr cls_MemberDescription kKopDescSizingFrozenArea[] = {
    {"region", "The shell elements left at their thickness"},
};
constexpr cls_MemberDescription kKopDescSizingPlanarSymmetry[] = {
    {"region", "The region it applies to"},
    {"axis", "The axis of the coordinate system normal to the plane of symmetry"},
};
constexpr cls_MemberDescription kKopDescSizingPointSymmetry[] = {
    {"region", "The region it applies to"},
};
constexpr cls_MemberDescription kKopDescSizingRotationalSymmetry[] = {
    {"region", "The region it applies to"},
    {"angle", "Angle by which the design repeats about the axis (degrees, above 2, below 360)"},
};
constexpr int kKopCodesSizingRotationalSymmetry[] = {16};
constexpr cls_MemberDescription kKopDescSizingTask[] = {
    {"freezeLoadRegions", "Whether the shell elements where loads act keep their thickness"},
    {"freezeBoundaryConditionRegions",
     "Whether the shell elements where boundary conditions act keep their thickness"},
    {"thicknessUpdateStrategy",
     "How boldly thicknesses change from cycle to cycle: normal, conservative (small steps) or "
     "aggressive (large steps)"},
    {"thicknessMoveLimit",
     "Largest change of an element's thickness in one design cycle (above 0)"},
    {"filterRadius",
     "Radius of the filter that smooths the sensitivities (at least 0; the largest double: the "
     "solver's default)"},
    {"numFulfilledStopCriteria",
     "How many of the two stop criteria (objective change, thickness change) must hold for the "
     "run to stop (1 or 2)"},
    {"objectiveFunctionDeltaStopCriteria",
     "Change of the objective below which the run counts as converged (at least 0)"},
    {"elementThicknessDeltaStopCriteria",
     "Change of element thickness below which the run counts as converged (at least 0)"},
    {"stopCriteriaDesignCycle",
     "Number of design cycles the stop criteria look back over (at least 3)"},
    {"stopCriteriaIteration", "The stop criteria design cycle under its stored name (at least 3)"},
    {"modeTrackingRegion", "The region over which mode shapes are compared for mode tracking"},
    {"numTrackedModes",
     "Number of eigenmodes followed from cycle to cycle by mode tracking (at least 0; 0: none)"},
};
constexpr int kKopCodesSizingTask[] = {
    111, 44, 46, 47, 113, 49, 65, 130, 131, 2, 4, 105, 106, 0, 137, 115};
constexpr cls_MemberDescription kKopDescSlideRegion[] = {
    {"region", "The nodes that may move only along the surface"},
};
constexpr cls_MemberDescription kKopDescStampControl[] = {
    {"region", "The region it applies to"},
    {"draftAngle", "Draft angle of the walls along the stamping direction (degrees, 0 to 20)"},
};
constexpr int kKopCodesStampControl[] = {101};
constexpr cls_MemberDescription kKopDescStepOption[] = {
    {"model", "The name of the model the step belongs to"},
    {"multipleStep",
     "The step read: a step name, \"ALL\", or a step set such as ALL_STATIC_STEPS (required)"},
    {"loadCase", "A load case of the step, by name (empty: the step itself; none with \"ALL\")"},
    {"procedureCategory", "The analysis procedure category of the step"},
    {"useAllModes",
     "Whether every mode of a modal step is read (otherwise \"modes\", or lowerMode to "
     "upperMode)"},
    {"lowerMode",
     "First mode read when not all and no \"modes\" are given (above 0, at most upperMode)"},
    {"upperMode", "Last mode read when not all and no \"modes\" are given (above 0)"},
    {"modes", "The modes read, one by one, instead of lowerMode to upperMode"},
};
constexpr int kKopCodesStepOption[] = {125, 86, 30, 31, 32};
constexpr cls_MemberDescription kKopDescTask[] = {
    {"suppressed", "Whether the task is suppressed (kept but not run)"},
    {"region", "The design region of the task (empty: the whole model)"},
    {"optimizationConstraints", "The task's optimization constraints, by name"},
    {"designResponses", "The task's design responses, by name"},
    {"geometricRestrictions", "The task's geometric restrictions, by name"},
    {"objectiveFunctions", "The task's objective functions, by name"},
    {"stopConditions", "The task's stop conditions, by name"},
    {"variables", "The task's design variables, by name"},
};
constexpr cls_MemberDescription kKopDescThicknessControl[] = {
    {"region", "The region it applies to"},
    {"minThickness",
     "Smallest thickness the task may give (above 0; the largest double: not bounded; one bound "
     "at least must be set)"},
    {"maxThickness",
     "Largest thickness the task may give (above 0, at least minThickness; the largest double: "
     "not bounded)"},
};
constexpr int kKopCodesThicknessControl[] = {112, 52, 53, 56};
constexpr cls_MemberDescription kKopDescTopologyTask[] = {
    {"freezeLoadRegions", "Whether the elements where loads act keep their design as it is"},
    {"freezeBoundaryConditionRegions",
     "Whether the elements where boundary conditions act keep their design as it is"},
    {"multipleProcessors",
     "Whether the optimizer runs on several processors (general algorithm only)"},
    {"numDesignCycles", "Most design cycles the run makes (at least 10)"},
    {"numFulfilledStopCriteria",
     "How many of the two stop criteria (objective change, density change) must hold for the run "
     "to stop (1 or 2)"},
    {"stopCriteriaDesignCycle",
     "Number of design cycles the stop criteria look back over (above 2)"},
    {"numTrackedModes",
     "Number of eigenmodes followed from cycle to cycle by mode tracking (at least 0; 0: none)"},
    {"firstCycleDeletedVolume",
     "Volume taken away in the first design cycle, a percentage or an absolute volume as "
     "firstCycleDeletedVolumeTechnique says"},
    {"initialDensity",
     "Relative density the design elements start with (above 0, from minDensity to maxDensity; "
     "the largest double: the solver's default)"},
    {"minDensity", "Smallest relative density an element may reach (above 0, at most maxDensity)"},
    {"maxDensity", "Largest relative density an element may reach (above 0, at most 1)"},
    {"densityMoveLimit", "Largest change of an element's density in one design cycle (above 0)"},
    {"filterRadius",
     "Radius of the filter that smooths the sensitivities (at least 0; the largest double: the "
     "solver's default)"},
    {"materialInterpolationPenalty",
     "Penalty exponent of the material interpolation: how strongly intermediate densities lose "
     "stiffness (at least 0)"},
    {"objectiveFunctionDeltaStopCriteria",
     "Change of the objective below which the run counts as converged (at least 0)"},
    {"elementDensityDeltaStopCriteria",
     "Change of element density below which the run counts as converged (at least 0)"},
    {"softDeletionRadius",
     "Radius (average edge length) of the soft-deletion check (at least 0; the largest double: "
     "the solver's default)"},
    {"structuralMassDamping",
     "Structural damping proportional to mass, for dynamic responses (the largest double: the "
     "solver's default)"},
    {"stiffnessMassDamping",
     "Structural damping proportional to stiffness, for dynamic responses (the largest double: "
     "the solver's default)"},
    {"viscousMassDamping",
     "Viscous damping proportional to mass, for dynamic responses (the largest double: the "
     "solver's default)"},
    {"viscousStiffnessDamping",
     "Viscous damping proportional to stiffness, for dynamic responses (the largest double: the "
     "solver's default)"},
    {"frequencySpectrumWeight",
     "Weight of the frequency spectrum in eigenfrequency objectives (at least 0)"},
    {"softDeletionRegion", "The region in which soft elements may be deleted"},
    {"modeTrackingRegion", "The region over which mode shapes are compared for mode tracking"},
    {"stepSize",
     "Size of the design steps: DYNAMIC, or a fixed size that needs a first-cycle deleted-volume "
     "technique"},
    {"firstCycleDeletedVolumeTechnique",
     "How firstCycleDeletedVolume counts: OFF, a percentage or an absolute volume (OFF exactly "
     "when stepSize is DYNAMIC)"},
    {"densityUpdateStrategy",
     "How boldly densities change from cycle to cycle: normal, conservative (small steps) or "
     "aggressive (large steps)"},
    {"materialInterpolationTechnique",
     "How stiffness follows density: SIMP (a power law) or RAMP (a rational law)"},
    {"softDeletionMethod",
     "The measure soft deletion compares with the threshold: the standard one, or a strain "
     "(MIN_PRINCIPAL_STRAIN and VOLUMETRIC_STRAIN_COMPRESSION take a negative threshold)"},
    {"softDeletionThreshold",
     "Threshold of the soft-deletion measure (at least 0; below 0 for MIN_PRINCIPAL_STRAIN and "
     "VOLUMETRIC_STRAIN_COMPRESSION)"},
};
constexpr int kKopCodesTopologyTask[] = {
    40, 41, 42, 43, 70, 39, 69, 44, 45, 46, 47, 48, 49, 50, 51, 64, 63, 62, 65, 66, 103, 104, 130,
    131, 2, 4, 105, 106, 0, 127, 137, 88, 115};
constexpr cls_MemberDescription kKopDescTranslationalSymmetry[] = {
    {"region", "The region it applies to"},
    {"translation", "Distance after which the design repeats along the direction (not 0)"},
};
constexpr int kKopCodesTranslationalSymmetry[] = {17};
constexpr cls_MemberDescription kKopDescTurnControl[] = {
    {"region", "The region kept turnable about the axis"},
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
