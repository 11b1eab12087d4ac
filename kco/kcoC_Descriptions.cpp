#include "kco/kcoC_Descriptions.h"

#include "kco/kcoC_assert.h"

// What the classes of the module and their members mean, by scripting name.
namespace {
constexpr cls_MemberDescription kKcoDescAdjustPoints[] = {
    {"surface", "Surface the control points are moved onto"},
    {"controlPoints", "Points to be adjusted onto the surface"},
};
constexpr cls_MemberDescription kKcoDescCoupling[] = {
    {"surface", "Surface whose nodes are coupled to the reference point"},
    {"refPoint", "Reference point (a single node) that controls the surface"},
    {"influenceRadius",
     "Distance from the reference point within which surface nodes are coupled, or "
     "\"WHOLE_SURFACE\" for every node"},
    {"couplingType",
     "Kind of coupling: kinematic (rigid), distributing (forces spread by weights; all of u1, u2, "
     "u3 "
     "constrained), structural or uniform degree of freedom"},
    {"localCsys", "The datum coordinate system of its directions (empty: the global system)"},
    {"u1", "Whether displacement along direction 1 is constrained"},
    {"u2", "Whether displacement along direction 2 is constrained"},
    {"u3", "Whether displacement along direction 3 is constrained"},
    {"ur1", "Whether rotation about direction 1 is constrained"},
    {"ur2", "Whether rotation about direction 2 is constrained"},
    {"ur3", "Whether rotation about direction 3 is constrained"},
    {"weightingMethod",
     "How the weights of the coupling nodes fall off with their distance from the reference "
     "point"},
    {"couplingNodes", "Nodes of the surface that take part in the coupling"},
    {"adjust", "Whether the reference point is moved onto the surface"},
    {"alpha", "Thermal expansion coefficient of the coupling"},
    {"rotationalCouplingType", "Whether the rotations couple as a continuum or as a structure"},
    {"uniformConstraint",
     "Field that a uniform coupling constrains equal over the surface (NONE: no uniform "
     "constraint)"},
    {"temperatureDOFType",
     "Which temperature degree of freedom a DOF_TEMPERATURE uniform coupling "
     "constrains"},
};
constexpr int kKcoCodesCoupling[] = {8};
constexpr cls_MemberDescription kKcoDescDdbDisplayBody[] = {
    {"instanceName", "Name of the part instance shown as the display body"},
    {"node1Label", "Label of the node that is the first control point"},
    {"node1InstanceName", "Instance of the first control point's node"},
    {"node2Label", "Label of the node that is the second control point"},
    {"node2InstanceName", "Instance of the second control point's node"},
    {"node3Label", "Label of the node that is the third control point"},
    {"node3InstanceName", "Instance of the third control point's node"},
};
constexpr cls_MemberDescription kKcoDescDisplayBody[] = {
    {"instanceId", "Id of the part instance shown as the display body (not 0)"},
    {"_dot1", "First control point, whose motion the display body follows"},
    {"_dot2", "Second control point (with the first, fixes the body's orientation)"},
    {"_dot3", "Third control point (with the other two, fixes the body's orientation)"},
};
constexpr int kKcoCodesDisplayBody[] = {9};
constexpr cls_MemberDescription kKcoDescEmbeddedRegion[] = {
    {"embeddedRegion", "Region embedded in the host (its nodes follow the host elements)"},
    {"hostRegion", "Region of the host elements the embedded region lies in"},
    {"toleranceMethod",
     "Which tolerance limits how far an embedded node may lie outside its host: absolute, "
     "fractional or both"},
    {"absoluteTolerance", "Largest distance of an embedded node outside its host"},
    {"fractionalTolerance",
     "Largest distance of an embedded node outside its host, as a fraction of the host "
     "element's size"},
    {"weightFactorTolerance",
     "Weight below which an embedded node's weight factor is rounded to zero"},
};
constexpr cls_MemberDescription kKcoDescEquation[] = {
    {"terms", "Terms of the linear equation whose sum is zero (at least two)"},
};
constexpr int kKcoCodesEquation[] = {0};
constexpr cls_MemberDescription kKcoDescEquationTerm[] = {
    {"coefficient", "Coefficient the degree of freedom is multiplied by"},
    {"setName", "Set (or point) whose degree of freedom the term takes"},
    {"dof", "Degree of freedom of the term (above 0)"},
    {"coordSysId",
     "Id of the coordinate system the degree of freedom is taken in (0: the global system)"},
};
constexpr int kKcoCodesEquationTerm[] = {4};
constexpr cls_MemberDescription kKcoDescMPC[] = {
    {"surface", "Region whose nodes the multipoint constraint ties to the control point"},
    {"refPoint", "Control point of the multipoint constraint"},
    {"mpcType", "Kind of multipoint constraint: beam, elbow, pin, link, tie or user-defined"},
    {"userMode",
     "Whether a user-defined constraint works degree of freedom by degree of freedom or node by "
     "node"},
    {"userType", "Number that selects the user-defined constraint (USER_MPC)"},
};
constexpr cls_MemberDescription kKcoDescRigidBody[] = {
    {"refPointRegion", "Reference point whose motion the rigid body follows"},
    {"bodyRegion", "Elements that move as the rigid body"},
    {"tieRegion", "Nodes tied to the rigid body (all their degrees of freedom)"},
    {"pinRegion", "Nodes pinned to the rigid body (displacements only)"},
    {"surfaceRegion", "Analytic surface that belongs to the rigid body"},
    {"refPointAtCOM", "Whether the reference point is moved to the body's centre of mass"},
    {"isothermal", "Whether the body's temperature is held uniform"},
};
constexpr cls_MemberDescription kKcoDescShellSolidCoupling[] = {
    {"shellEdge", "Shell edge that is coupled to the solid"},
    {"solidFace", "Solid face the shell edge is coupled to (required)"},
    {"positionToleranceMethod",
     "Whether the position tolerance is computed or the given positionTolerance"},
    {"positionTolerance",
     "Largest distance of a shell node from the solid face to be coupled (SPECIFIED)"},
    {"influenceDistanceMethod",
     "Whether the influence distance is computed or the given influenceDistance"},
    {"influenceDistance",
     "Distance into the solid over which the shell edge is coupled (SPECIFIED)"},
};
constexpr int kKcoCodesShellSolidCoupling[] = {5};
constexpr cls_MemberDescription kKcoDescTie[] = {
    {"master", "Main surface that the secondary region is tied to"},
    {"slave", "Secondary region whose nodes are tied to the main surface"},
    {"adjust", "Whether secondary nodes are moved onto the main surface"},
    {"positionTolerance",
     "Largest distance of a secondary node from the main surface to be tied (SPECIFIED)"},
    {"tieRotations", "Whether rotational degrees of freedom are tied as well"},
    {"positionToleranceMethod",
     "Whether the position tolerance is computed or the given positionTolerance"},
    {"constraintRatioMethod",
     "Whether the constraint ratio is the default or the given constraintRatio"},
    {"constraintRatio",
     "Fractional distance between the surfaces at which the constraint acts (SPECIFIED)"},
    {"constraintEnforcement",
     "How the tie is enforced: node to surface, surface to surface, or as the solver "
     "chooses (SOLVER_DEFAULT)"},
    {"thickness", "Whether shell thickness is taken into account"},
    {"tiedNset", "Node set to adjust for overclosure of the tie"},
    {"cyclicSymmetry", "Whether the tie joins the faces of a cyclic symmetric model"},
    {"tieTemperature", "Whether temperature degrees of freedom are tied"},
    {"tiePore", "Whether pore pressure degrees of freedom are tied"},
    {"electricPotential", "Whether electric potential degrees of freedom are tied"},
    {"fluidElectricPotential", "Whether fluid electric potential degrees of freedom are tied"},
    {"ionConcentration", "Whether ion concentration degrees of freedom are tied"},
};
constexpr cls_ClassDescription kKcoDescriptions[] = {
    {"kcoC_AdjustPoints", "Points moved onto a surface before the analysis.", kKcoDescAdjustPoints},
    {"kcoC_Coupling",
     "A coupling of a reference point to a surface: kinematic, distributing, structural or "
     "uniform.",
     kKcoDescCoupling, nullptr, kKcoCodesCoupling},
    {"kcoC_DdbDisplayBody",
     "A display body as stored by name: the instance and the three control nodes by label and "
     "instance name.",
     kKcoDescDdbDisplayBody},
    {"kcoC_DisplayBody",
     "A display body: a part instance drawn as moving with three control points.",
     kKcoDescDisplayBody, nullptr, kKcoCodesDisplayBody},
    {"kcoC_EmbeddedRegion",
     "A region embedded in a host region: the embedded nodes follow the host elements they lie "
     "in, found within the tolerances.",
     kKcoDescEmbeddedRegion},
    {"kcoC_Equation", "A linear equation between degrees of freedom: the sum of its terms is zero.",
     kKcoDescEquation, nullptr, kKcoCodesEquation},
    {"kcoC_EquationTerm",
     "One term of an equation: a coefficient times a degree of freedom of the nodes of a set, in "
     "a coordinate system.",
     kKcoDescEquationTerm, nullptr, kKcoCodesEquationTerm},
    {"kcoC_MPC",
     "A multipoint constraint of a surface's nodes to a reference point, of one of the built-in "
     "kinds or a user kind.",
     kKcoDescMPC},
    {"kcoC_RigidBody", "A rigid body: regions that move with a reference point.",
     kKcoDescRigidBody},
    {"kcoC_ShellSolidCoupling", "A coupling of a shell edge to a solid face.",
     kKcoDescShellSolidCoupling, nullptr, kKcoCodesShellSolidCoupling},
    {"kcoC_Tie",
     "A tie between a main surface and a secondary region: the secondary nodes follow the main "
     "surface.",
     kKcoDescTie},
};
}  // namespace

std::span<const cls_ClassDescription> kcoC_DescriptionsTable() {
  return kKcoDescriptions;
}

void kcoC_RegisterDescriptions() {
  const cls_ErrorMessageFn messages = [](int code) {
    return kcoC_ErrorMessage(static_cast<kcoC_ErrorEnm>(code));
  };
  cls_RegisterDescriptions("kco", kcoC_DescriptionsTable(), messages);
}
void kcoC_UnregisterDescriptions() {
  cls_UnregisterDescriptions("kco");
}
