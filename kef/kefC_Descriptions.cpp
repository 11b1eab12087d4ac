#include "kef/kefC_Descriptions.h"
#include "kef/kefC_assert.h"

// What the classes of the module and their members mean, by scripting name.
namespace {
constexpr cls_MemberDescription kKefDescAssembledFastener[] = {
    {"region", "The region it applies to"},
    {"ur1", "Whether rotation about direction 1 is coupled"},
    {"ur2", "Whether rotation about direction 2 is coupled"},
    {"ur3", "Whether rotation about direction 3 is coupled"},
    {"influenceRadius", "Influence radius"},
    {"weightingMethod", "Weighting method"},
    {"coupling", "Whether the components act uncoupled or coupled"},
    {"rotationalCoupling", "Rotational coupling"},
    {"templateModel", "Template model"},
    {"controlSet", "Control set"},
    {"propertyPrefix", "Property prefix"},
    {"templateSurfaces", "Template surfaces"},
    {"assignedSurfaces", "Assigned surfaces (lists of strings)"},
    {"orientMethod", "Orient method"},
    {"scriptName", "Script name"},
    {"flipNormal", "Flip normal"},
};
constexpr int kKefCodesAssembledFastener[] = {28, 29, 30, 31, 32, 33, 34};
constexpr cls_MemberDescription kKefDescContourIntegral[] = {
    {"symmetric", "Symmetric"},
    {"crackFront", "Crack front"},
    {"crackTip", "Crack tip (regions)"},
    {"extensionDirectionMethod", "Scripting \"extensionDirectionMethod\""},
    {"crackNormal", "Crack normal"},
    {"qVectors", "Q vectors"},
    {"midNodePosition", "Mid node position"},
    {"collapsedElementAtTip", "Collapsed element at tip"},
};
constexpr int kKefCodesContourIntegral[] = {2};
constexpr cls_MemberDescription kKefDescDataImperfection[] = {
    {"imperfectionTable", "Imperfection table (table of doubles)"},
    {"nodeNumbers", "Node numbers (int list)"},
    {"system", "System"},
};
constexpr cls_MemberDescription kKefDescDebondVCCT[] = {
    {"initiationStep", "Initiation step, scripting \"initiationStep\""},
    {"surfToSurfInteraction", "Surf to surf interaction"},
    {"debondingForceAmplitude", "Scripting \"debondingForceAmplitude\""},
    {"printToDATFrequency", "Print to DAT frequency (int, scripting \"printToDATFrequency\")"},
};
constexpr int kKefCodesDebondVCCT[] = {36, 37, 38};
constexpr cls_MemberDescription kKefDescDiscreteFastener[] = {
    {"region", "The region it applies to"},
    {"ur1", "Whether rotation about direction 1 is coupled"},
    {"ur2", "Whether rotation about direction 2 is coupled"},
    {"ur3", "Whether rotation about direction 3 is coupled"},
    {"influenceRadius", "Influence radius"},
    {"weightingMethod", "Weighting method"},
    {"coupling", "Whether the components act uncoupled or coupled"},
    {"rotationalCoupling", "Rotational coupling"},
    {"adherend", "Scripting \"adherend\""},
};
constexpr cls_MemberDescription kKefDescEngineeringFeatures[] = {
    {"inertias", "Inertias"},
    {"fasteners", "Fasteners"},
    {"cracks", "Cracks"},
    {"springDashpots", "Spring dashpots"},
    {"imperfections", "Imperfections"},
};
constexpr cls_MemberDescription kKefDescFileImperfection[] = {
    {"resultsFile", "Results file"},
    {"step", "Step"},
    {"increment", "Increment"},
    {"imperfectionRegion", "Imperfection region"},
    {"modeNumbers", "Mode numbers (int list)"},
    {"scalingFactors", "Scaling factors (double list)"},
};
constexpr cls_MemberDescription kKefDescHeatCapacitance[] = {
    {"region", "The region it applies to"},
    {"table", "Table"},
};
constexpr cls_MemberDescription kKefDescInputImperfection[] = {
    {"inputFile", "Input file"},
    {"system", "System"},
};
constexpr cls_MemberDescription kKefDescNonstructuralMass[] = {
    {"region", "The region it applies to"},
    {"units", "Units"},
    {"magnitude", "Magnitude"},
    {"distribution", "Distribution"},
};
constexpr int kKefCodesNonstructuralMass[] = {11};
constexpr cls_MemberDescription kKefDescPointFastener[] = {
    {"region", "The region it applies to"},
    {"ur1", "Whether rotation about direction 1 is coupled"},
    {"ur2", "Whether rotation about direction 2 is coupled"},
    {"ur3", "Whether rotation about direction 3 is coupled"},
    {"influenceRadius", "Influence radius"},
    {"weightingMethod", "Weighting method"},
    {"coupling", "Whether the components act uncoupled or coupled"},
    {"rotationalCoupling", "Rotational coupling"},
    {"targetSurface", "Target surface"},
    {"targetSurfaces", "Target surfaces"},
    {"directionVector", "Direction vector"},
    {"searchRadius", "Search radius"},
    {"maximumLayers", "Maximum layers (int or \"ALL\")"},
    {"adjustOrientation", "Adjust orientation"},
    {"unsorted", "Unsorted"},
    {"physicalRadius", "Physical radius"},
    {"additionalMass", "Additional mass"},
    {"connectionType", "Connection type"},
    {"attachmentMethod", "Attachment method"},
    {"sectionName", "Section name"},
    {"connectorOrientationLocalCsys1", "Connector orientation local csys1"},
    {"connectorOrientationLocalCsys2", "Connector orientation local csys2"},
    {"connectorOrientationOrient2sameAs1", "Scripting \"connectorOrientationOrient2sameAs1\""},
    {"connectorOrientationAngle1", "Connector orientation angle1"},
    {"connectorOrientationAngle2", "Connector orientation angle2"},
    {"connectorOrientationAxis1", "Connector orientation axis1"},
    {"connectorOrientationAxis2", "Connector orientation axis2"},
};
constexpr int kKefCodesPointFastener[] = {13, 14, 15, 16};
constexpr cls_MemberDescription kKefDescPointMassInertia[] = {
    {"region", "The region it applies to"},
    {"mass", "Mass"},
    {"i11", "I11"},
    {"i22", "I22"},
    {"i33", "I33"},
    {"i12", "I12"},
    {"i13", "I13"},
    {"i23", "I23"},
    {"localCsys", "The local datum coordinate system (empty: the global system)"},
    {"alpha", "Alpha"},
    {"composite", "Composite"},
    {"mass1", "Mass1"},
    {"mass2", "Mass2"},
    {"mass3", "Mass3 (doubles, anisotropic mass)"},
};
constexpr int kKefCodesPointMassInertia[] = {0, 1, 35};
constexpr cls_MemberDescription kKefDescSpringToGround[] = {
    {"springStiffness", "Spring stiffness"},
    {"applySpring", "Apply spring"},
    {"dashpotCoefficient", "Dashpot coefficient"},
    {"applyDashpot", "Apply dashpot"},
    {"dof1", "Dof1"},
    {"dof2", "Dof2"},
    {"localCsys", "The local datum coordinate system (empty: the global system)"},
    {"region", "The region it applies to"},
};
constexpr int kKefCodesSpringToGround[] = {4, 5};
constexpr cls_MemberDescription kKefDescTwoPointSpring[] = {
    {"springStiffness", "Spring stiffness"},
    {"applySpring", "Apply spring"},
    {"dashpotCoefficient", "Dashpot coefficient"},
    {"applyDashpot", "Apply dashpot"},
    {"dof1", "Dof1"},
    {"dof2", "Dof2"},
    {"localCsys", "The local datum coordinate system (empty: the global system)"},
    {"regionPairs", "Region pairs"},
    {"axis", "Axis"},
};
constexpr int kKefCodesTwoPointSpring[] = {6, 7, 8};
constexpr cls_MemberDescription kKefDescXFEMCrack[] = {
    {"crackDomain", "Crack domain"},
    {"crackLocation", "Crack location (regions)"},
    {"allowCrackGrowth", "Allow crack growth"},
    {"singularityCalcRadius", "Singularity calc radius"},
    {"interactionProperty", "Interaction property"},
    {"elemId", "Elem id"},
    {"nodeId", "Node id (int arrays)"},
    {"hasCrackFront", "Has crack front (int array)"},
    {"crackPlaneDist", "Crack plane dist"},
    {"crackFrontDist", "Crack front dist (double arrays)"},
    {"autoDetectValue", "Auto detect value"},
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
     kKefDescDiscreteFastener},
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

std::span<const cls_ClassDescription> kefC_DescriptionsTable() { return kKefDescriptions; }

void kefC_RegisterDescriptions() {
  const cls_ErrorMessageFn messages = [](int code) { return kefC_ErrorMessage(static_cast<kefC_ErrorEnm>(code)); };
  cls_RegisterDescriptions("kef", kefC_DescriptionsTable(), messages);
}
void kefC_UnregisterDescriptions() { cls_UnregisterDescriptions("kef"); }
