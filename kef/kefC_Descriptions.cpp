#include "kef/kefC_Descriptions.h"

#include "kef/kefC_assert.h"

// What the classes of the module and their members mean, by scripting name.
namespace {
constexpr cls_MemberDescription kKefDescAssembledFastener[] = {
    {"region", "Points at which the fasteners are placed"},
    {"ur1", "Whether rotation about direction 1 is coupled"},
    {"ur2", "Whether rotation about direction 2 is coupled"},
    {"ur3", "Whether rotation about direction 3 is coupled"},
    {"influenceRadius",
     "Distance around each fastener point within which nodes are coupled (above 0), or "
     "\"WHOLE_SURFACE\""},
    {"weightingMethod",
     "How the weights of the coupled nodes fall off with their distance from the fastener "
     "point"},
    {"coupling", "Whether the fastener couples to the surfaces as a continuum or as a structure"},
    {"rotationalCoupling", "Whether the rotations couple as a continuum or as a structure"},
    {"templateModel", "Name of the model that is the fastener's template (required)"},
    {"controlSet",
     "Set of points in the template model that are placed at the fastener points (required)"},
    {"propertyPrefix",
     "Prefix of the names given to the properties copied from the template (required, no "
     "\"_\")"},
    {"templateSurfaces",
     "Surfaces of the template model, each assigned to the surface at the same place in "
     "assignedSurfaces"},
    {"assignedSurfaces",
     "Surfaces of this model the template surfaces are assigned to (as many, none blank)"},
    {"orientMethod",
     "How each copy of the template is oriented: by the surface normals or by a coordinate system"},
    {"scriptName", "Script that places the template"},
    {"flipNormal", "Whether the orienting normal is reversed"},
};
constexpr int kKefCodesAssembledFastener[] = {12, 28, 29, 30, 31, 32, 33, 34};
constexpr cls_MemberDescription kKefDescContourIntegral[] = {
    {"symmetric",
     "Whether only half of the crack is modelled (a symmetry plane through the crack)"},
    {"crackFront", "Region that forms the crack front"},
    {"crackTip", "Region of the crack tip or crack line"},
    {"extensionDirectionMethod",
     "How the direction of crack extension is given: by the crack normal or by q "
     "vectors"},
    {"crackNormal", "Normal to the crack plane (with CRACK_NORMAL)"},
    {"qVectors", "Directions of crack extension, one row per vector (with Q_VECTORS)"},
    {"midNodePosition",
     "Position of the mid-side nodes of the crack-tip elements, as a fraction of the edge (0 "
     "to 1; 0.25 gives the singular quarter-point position)"},
    {"collapsedElementAtTip",
     "How elements collapsed at the crack tip are formed: not at all, with a single "
     "node or with duplicate nodes"},
};
constexpr int kKefCodesContourIntegral[] = {2};
constexpr cls_MemberDescription kKefDescDataImperfection[] = {
    {"imperfectionTable", "Imperfection of each node, one row of coordinates per node"},
    {"nodeNumbers", "Numbers of the nodes, one for each row of the table"},
    {"system",
     "Kind of coordinate system the imperfection is given in: cartesian, cylindrical or spherical"},
};
constexpr cls_MemberDescription kKefDescDebondVCCT[] = {
    {"initiationStep", "Name of the step in which debonding may start (required)"},
    {"surfToSurfInteraction",
     "Name of the contact pair interaction along which the surfaces debond (required)"},
    {"debondingForceAmplitude",
     "How the force at a debonding node is released: at once (STEP) or over the "
     "increment (RAMP)"},
    {"printToDATFrequency",
     "Interval, in increments, of the debond output to the data file (at least 0)"},
};
constexpr int kKefCodesDebondVCCT[] = {36, 37, 38};
constexpr cls_MemberDescription kKefDescDiscreteFastener[] = {
    {"region", "Points at which the fasteners are placed"},
    {"ur1", "Whether rotation about direction 1 is coupled"},
    {"ur2", "Whether rotation about direction 2 is coupled"},
    {"ur3", "Whether rotation about direction 3 is coupled"},
    {"influenceRadius",
     "Distance around each fastener point within which nodes are coupled (above 0), or "
     "\"WHOLE_SURFACE\""},
    {"weightingMethod",
     "How the weights of the coupled nodes fall off with their distance from the fastener "
     "point"},
    {"coupling", "Whether the fastener couples to the surfaces as a continuum or as a structure"},
    {"rotationalCoupling", "Whether the rotations couple as a continuum or as a structure"},
    {"adherend",
     "What joins the fastener to the surfaces: a connector, spring-rigid-spring or "
     "rigid-spring-rigid"},
};
constexpr int kKefCodesDiscreteFastener[] = {12};
constexpr cls_MemberDescription kKefDescEngineeringFeatures[] = {
    {"inertias", "Point masses, nonstructural masses and heat capacitances, by name"},
    {"fasteners", "Point-based, discrete and assembled fasteners, by name"},
    {"cracks", "Contour integral, XFEM and debond cracks, by name"},
    {"springDashpots", "Springs and dashpots to ground or between two points, by name"},
    {"imperfections",
     "Geometric imperfections from a results file, an input file or data, by name"},
};
constexpr cls_MemberDescription kKefDescFileImperfection[] = {
    {"resultsFile", "Results file of the earlier analysis the imperfection is read from"},
    {"step", "Step of that analysis whose results are read"},
    {"increment", "Increment of that step whose results are read"},
    {"imperfectionRegion", "Region the imperfection applies to"},
    {"modeNumbers", "Mode shapes combined into the imperfection, by mode number"},
    {"scalingFactors", "Scale of each mode shape, one for each of modeNumbers"},
};
constexpr cls_MemberDescription kKefDescHeatCapacitance[] = {
    {"region", "Points that carry the heat capacitance"},
    {"table", "Heat capacitance at each point, then temperature and field variables (table)"},
};
constexpr cls_MemberDescription kKefDescInputImperfection[] = {
    {"inputFile", "Input file that holds the imperfection of each node"},
    {"system",
     "Kind of coordinate system the imperfection is given in: cartesian, cylindrical or spherical"},
};
constexpr cls_MemberDescription kKefDescNonstructuralMass[] = {
    {"region", "Region the mass is added to"},
    {"units", "How magnitude is given: the total mass, or mass per volume, per area or per length"},
    {"magnitude", "Amount of mass, in the units chosen (at least 0)"},
    {"distribution",
     "How a total mass is spread: in proportion to the structural mass or to the volume"},
};
constexpr int kKefCodesNonstructuralMass[] = {11};
constexpr cls_MemberDescription kKefDescPointFastener[] = {
    {"region", "Points at which the fasteners are placed"},
    {"ur1", "Whether rotation about direction 1 is coupled"},
    {"ur2", "Whether rotation about direction 2 is coupled"},
    {"ur3", "Whether rotation about direction 3 is coupled"},
    {"influenceRadius",
     "Distance around each fastener point within which nodes are coupled (above 0), or "
     "\"WHOLE_SURFACE\""},
    {"weightingMethod",
     "How the weights of the coupled nodes fall off with their distance from the fastener "
     "point"},
    {"coupling", "Whether the fastener couples to the surfaces as a continuum or as a structure"},
    {"rotationalCoupling", "Whether the rotations couple as a continuum or as a structure"},
    {"targetSurface", "Surface the fastener points are projected onto (not edge-based)"},
    {"targetSurfaces", "Surfaces the fasteners join, in order through the layers"},
    {"directionVector", "Direction in which the fasteners are projected onto the surfaces"},
    {"searchRadius",
     "Distance from a fastener point within which surfaces are found (above 0; null: "
     "unspecified)"},
    {"maximumLayers", "Largest number of layers a fastener joins (at least 1), or \"ALL\""},
    {"adjustOrientation", "Whether the fastener's orientation is adjusted to the surfaces"},
    {"unsorted",
     "Whether the surfaces are joined in the order given instead of sorted along the fastener"},
    {"physicalRadius", "Radius of the fastener itself (above 0)"},
    {"additionalMass", "Mass added at each fastener point"},
    {"connectionType", "What joins the layers: a connector or a beam-type multipoint constraint"},
    {"attachmentMethod",
     "Whether the fastener attaches face or edge of one layer to face or edge of the next"},
    {"sectionName", "Connector section the fasteners take (required)"},
    {"connectorOrientationLocalCsys1",
     "Coordinate system that orients the connector at its first end (empty: the "
     "global system)"},
    {"connectorOrientationLocalCsys2",
     "Coordinate system that orients the connector at its second end (empty: "
     "the global system)"},
    {"connectorOrientationOrient2sameAs1", "Whether the second end is oriented as the first"},
    {"connectorOrientationAngle1",
     "Additional rotation of the first orientation about connectorOrientationAxis1 "
     "(degrees)"},
    {"connectorOrientationAngle2",
     "Additional rotation of the second orientation about "
     "connectorOrientationAxis2 (degrees)"},
    {"connectorOrientationAxis1",
     "Axis of the first orientation that the additional rotation turns about"},
    {"connectorOrientationAxis2",
     "Axis of the second orientation that the additional rotation turns about"},
};
constexpr int kKefCodesPointFastener[] = {12, 13, 14, 15, 16};
constexpr cls_MemberDescription kKefDescPointMassInertia[] = {
    {"region", "Points that carry the mass and inertia"},
    {"mass", "Isotropic mass at each point (not together with mass1 to mass3)"},
    {"i11", "Rotary inertia about axis 1 (at least 0)"},
    {"i22", "Rotary inertia about axis 2 (at least 0)"},
    {"i33", "Rotary inertia about axis 3 (at least 0)"},
    {"i12", "Product of inertia of axes 1 and 2"},
    {"i13", "Product of inertia of axes 1 and 3"},
    {"i23", "Product of inertia of axes 2 and 3"},
    {"localCsys", "The local datum coordinate system (empty: the global system)"},
    {"alpha", "Mass-proportional damping factor of the point mass"},
    {"composite", "Composite damping factor of the point mass"},
    {"mass1", "Mass in direction 1 (anisotropic mass; not together with mass)"},
    {"mass2", "Mass in direction 2 (anisotropic mass; not together with mass)"},
    {"mass3", "Mass in direction 3 (anisotropic mass; not together with mass)"},
};
constexpr int kKefCodesPointMassInertia[] = {0, 1, 35};
constexpr cls_MemberDescription kKefDescSpringToGround[] = {
    {"springStiffness", "Stiffness of the spring (above 0 when applySpring)"},
    {"applySpring", "Whether the feature has a spring (at least one of spring and dashpot)"},
    {"dashpotCoefficient",
     "Coefficient of the dashpot, force per velocity (above 0 when applyDashpot)"},
    {"applyDashpot", "Whether the feature has a dashpot"},
    {"dof1", "Degree of freedom the spring or dashpot acts in (above 0)"},
    {"dof2", "Second degree of freedom (not used to ground)"},
    {"localCsys", "The local datum coordinate system (empty: the global system)"},
    {"region", "Points joined to ground by the spring or dashpot"},
};
constexpr int kKefCodesSpringToGround[] = {3, 10, 9, 4, 5};
constexpr cls_MemberDescription kKefDescTwoPointSpring[] = {
    {"springStiffness", "Stiffness of the spring (above 0 when applySpring)"},
    {"applySpring", "Whether the feature has a spring (at least one of spring and dashpot)"},
    {"dashpotCoefficient",
     "Coefficient of the dashpot, force per velocity (above 0 when applyDashpot)"},
    {"applyDashpot", "Whether the feature has a dashpot"},
    {"dof1", "Degree of freedom at the first point (above 0)"},
    {"dof2", "Degree of freedom at the second point (above 0)"},
    {"localCsys", "The local datum coordinate system (empty: the global system)"},
    {"regionPairs", "Pairs of points the springs or dashpots join"},
    {"axis",
     "Whether it acts along the line joining the points or between the fixed degrees of freedom "
     "dof1 "
     "and dof2"},
};
constexpr int kKefCodesTwoPointSpring[] = {3, 10, 9, 6, 7, 8};
constexpr cls_MemberDescription kKefDescXFEMCrack[] = {
    {"crackDomain", "Region in which the crack may lie and grow"},
    {"crackLocation", "Region of the initial crack (required when allowCrackGrowth is false)"},
    {"allowCrackGrowth", "Whether the crack may grow during the analysis"},
    {"singularityCalcRadius",
     "Radius around the crack tip within which the singularity is computed (above 0; "
     "null: unspecified)"},
    {"interactionProperty", "Name of the contact property of the crack faces"},
    {"elemId", "Elements that hold crack data, one entry each"},
    {"nodeId", "Node of each element in elemId (as many entries)"},
    {"hasCrackFront", "Whether each element in elemId holds the crack front (as many entries)"},
    {"crackPlaneDist",
     "Distance of the node from the crack plane, for each element in elemId (as many entries)"},
    {"crackFrontDist",
     "Distance of the node from the crack front, for each element in elemId (as many entries)"},
    {"autoDetectValue", "Whether the crack data are detected automatically"},
};
constexpr int kKefCodesXFEMCrack[] = {18, 19, 20, 21, 22, 23};
constexpr cls_ClassDescription kKefDescriptions[] = {
    {"kefC_AssembledFastener",
     "An assembled fastener: a template model copied to each point of a control set, its template "
     "surfaces assigned to surfaces of this model.",
     kKefDescAssembledFastener, nullptr, kKefCodesAssembledFastener},
    {"kefC_ContourIntegral",
     "A contour integral crack: a crack front and tip with the direction of crack extension, "
     "given by the crack normal or by q vectors.",
     kKefDescContourIntegral, nullptr, kKefCodesContourIntegral},
    {"kefC_DataImperfection",
     "An imperfection given as data: one row of displacements per node, the nodes by number.",
     kKefDescDataImperfection},
    {"kefC_DebondVCCT",
     "A debond by the virtual crack closure technique along a contact pair, from an initiation "
     "step.",
     kKefDescDebondVCCT, nullptr, kKefCodesDebondVCCT},
    {"kefC_DiscreteFastener",
     "A discrete fastener: one fastener at each point of a region, joined as the adherend says.",
     kKefDescDiscreteFastener, nullptr, kKefCodesDiscreteFastener},
    {"kefC_EngineeringFeatures",
     "The engineering features of a model (\"engineeringFeatures\"): one object that the model "
     "holds as an extension, owning the five containers of features by name.",
     kKefDescEngineeringFeatures},
    {"kefC_Fastener",
     "A fastener: the abstract root of the fastener family, with the members every kind shares.",
     {}},
    {"kefC_FileImperfection",
     "An imperfection from the results of an earlier analysis: a step and increment, or mode "
     "shapes with scale factors.",
     kKefDescFileImperfection},
    {"kefC_HeatCapacitance",
     "Heat capacitance at the points of a region, possibly depending on temperature and field "
     "variables.",
     kKefDescHeatCapacitance},
    {"kefC_InputImperfection",
     "An imperfection read from an input file, in a coordinate system of the given kind.",
     kKefDescInputImperfection},
    {"kefC_NonstructuralMass",
     "Mass that adds to a region without stiffness: a total or a mass per volume, area or length, "
     "spread by mass or by volume.",
     kKefDescNonstructuralMass, nullptr, kKefCodesNonstructuralMass},
    {"kefC_PointFastener",
     "A point-based fastener: fasteners at the points of a region, joining the target surfaces "
     "found within the search radius.",
     kKefDescPointFastener, nullptr, kKefCodesPointFastener},
    {"kefC_PointMassInertia",
     "A point mass with rotary inertia at the points of a region: an isotropic mass or a mass per "
     "direction (mass1 to mass3), and the inertia tensor in a coordinate system.",
     kKefDescPointMassInertia, nullptr, kKefCodesPointMassInertia},
    {"kefC_Spring",
     "A spring, a dashpot or both: the abstract root of the spring family, with the members every "
     "kind shares.",
     {}},
    {"kefC_SpringToGround",
     "A spring or dashpot from each point of a region to ground, acting in one degree of freedom.",
     kKefDescSpringToGround, nullptr, kKefCodesSpringToGround},
    {"kefC_TwoPointSpring",
     "A spring or dashpot between pairs of points, acting along the line joining them or between "
     "a fixed degree of freedom at each end.",
     kKefDescTwoPointSpring, nullptr, kKefCodesTwoPointSpring},
    {"kefC_XFEMCrack",
     "An extended finite element crack in a domain, with its initial location and the per-element "
     "crack data.",
     kKefDescXFEMCrack, nullptr, kKefCodesXFEMCrack},
};
}  // namespace

std::span<const cls_ClassDescription> kefC_DescriptionsTable() {
  return kKefDescriptions;
}

void kefC_RegisterDescriptions() {
  const cls_ErrorMessageFn messages = [](int code) {
    return kefC_ErrorMessage(static_cast<kefC_ErrorEnm>(code));
  };
  cls_RegisterDescriptions("kef", kefC_DescriptionsTable(), messages);
}
void kefC_UnregisterDescriptions() {
  cls_UnregisterDescriptions("kef");
}
