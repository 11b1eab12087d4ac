#include "kco/kcoC_Descriptions.h"
#include "kco/kcoC_assert.h"

// What the classes of the module and their members mean, by scripting name.
namespace {
constexpr cls_MemberDescription kKcoDescAdjustPoints[] = {
    {"surface", "Surface"},
    {"controlPoints", "Control points"},
};
constexpr cls_MemberDescription kKcoDescCoupling[] = {
    {"surface", "Surface"},
    {"refPoint", "Ref point (regions)"},
    {"influenceRadius", "The value \"WHOLE_SURFACE\" or a distance"},
    {"couplingType", "Coupling type"},
    {"localCsys", "Local coordinate system, scripting name \"localCsys\""},
    {"u1", "Whether displacement along direction 1 is constrained"},
    {"u2", "Whether displacement along direction 2 is constrained"},
    {"u3", "Whether displacement along direction 3 is constrained"},
    {"ur1", "Whether rotation about direction 1 is constrained"},
    {"ur2", "Whether rotation about direction 2 is constrained"},
    {"ur3", "Ur3 (bools: constrained degrees of freedom)"},
    {"weightingMethod", "Weighting method"},
    {"couplingNodes", "Coupling nodes"},
    {"adjust", "Adjust"},
    {"alpha", "Alpha"},
    {"rotationalCouplingType", "Rotational coupling type"},
    {"uniformConstraint", "Uniform constraint"},
    {"temperatureDOFType", "Temperature DOF type"},
};
constexpr int kKcoCodesCoupling[] = {8};
constexpr cls_MemberDescription kKcoDescDdbDisplayBody[] = {
    {"instanceName", "Instance name"},
    {"node1Label", "Node1 label"},
    {"node1InstanceName", "Node1 instance name"},
    {"node2Label", "Node2 label"},
    {"node2InstanceName", "Node2 instance name"},
    {"node3Label", "Node3 label"},
    {"node3InstanceName", "Node3 instance name"},
};
constexpr cls_MemberDescription kKcoDescDisplayBody[] = {
    {"instanceId", "Instance id"},
    {"_dot1", " dot1"},
    {"_dot2", " dot2"},
    {"_dot3", " dot3"},
};
constexpr int kKcoCodesDisplayBody[] = {9};
constexpr cls_MemberDescription kKcoDescEmbeddedRegion[] = {
    {"embeddedRegion", "Embedded region"},
    {"hostRegion", "Host region (regions)"},
    {"toleranceMethod", "Tolerance method"},
    {"absoluteTolerance", "Absolute tolerance"},
    {"fractionalTolerance", "Fractional tolerance"},
    {"weightFactorTolerance", "Weight factor tolerance"},
};
constexpr cls_MemberDescription kKcoDescEquation[] = {
    {"terms", "Terms"},
};
constexpr int kKcoCodesEquation[] = {0};
constexpr cls_MemberDescription kKcoDescEquationTerm[] = {
    {"coefficient", "Coefficient"},
    {"setName", "Set name"},
    {"dof", "Dof"},
    {"coordSysId", "Coord sys id"},
};
constexpr int kKcoCodesEquationTerm[] = {4};
constexpr cls_MemberDescription kKcoDescMPC[] = {
    {"surface", "Surface"},
    {"refPoint", "Ref point"},
    {"mpcType", "Mpc type"},
    {"userMode", "User mode"},
    {"userType", "User type"},
};
constexpr cls_MemberDescription kKcoDescRigidBody[] = {
    {"refPointRegion", "Ref point region"},
    {"bodyRegion", "Body region"},
    {"tieRegion", "Tie region"},
    {"pinRegion", "Pin region"},
    {"surfaceRegion", "Surface region"},
    {"refPointAtCOM", "Ref point at COM"},
    {"isothermal", "Isothermal"},
};
constexpr cls_MemberDescription kKcoDescShellSolidCoupling[] = {
    {"shellEdge", "Shell edge"},
    {"solidFace", "Solid face (regions)"},
    {"positionToleranceMethod", "Position tolerance method"},
    {"positionTolerance", "Position tolerance"},
    {"influenceDistanceMethod", "Influence distance method"},
    {"influenceDistance", "Influence distance"},
};
constexpr int kKcoCodesShellSolidCoupling[] = {5};
constexpr cls_MemberDescription kKcoDescTie[] = {
    {"master", "Main surface region"},
    {"slave", "Secondary region"},
    {"adjust", "Adjust"},
    {"positionTolerance", "Position tolerance"},
    {"tieRotations", "Tie rotations"},
    {"positionToleranceMethod", "Position tolerance method"},
    {"constraintRatioMethod", "Constraint ratio method"},
    {"constraintRatio", "Constraint ratio"},
    {"constraintEnforcement", "Constraint enforcement"},
    {"thickness", "Thickness"},
    {"tiedNset", "Tied nset (region)"},
    {"cyclicSymmetry", "Cyclic symmetry"},
    {"tieTemperature", "Tie temperature"},
    {"tiePore", "Tie pore"},
    {"electricPotential", "Electric potential"},
    {"fluidElectricPotential", "Fluid electric potential"},
    {"ionConcentration", "Ion concentration (bools)"},
};
constexpr cls_ClassDescription kKcoDescriptions[] = {
    {"kcoC_AdjustPoints",
     "Points moved onto a surface before the analysis.",
     kKcoDescAdjustPoints},
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
    {"kcoC_Equation",
     "A linear equation between degrees of freedom: the sum of its terms is zero.",
     kKcoDescEquation, nullptr, kKcoCodesEquation},
    {"kcoC_EquationTerm",
     "One term of an equation: a coefficient times a degree of freedom of the nodes of a set, in "
     "a coordinate system.",
     kKcoDescEquationTerm, nullptr, kKcoCodesEquationTerm},
    {"kcoC_MPC",
     "A multipoint constraint of a surface's nodes to a reference point, of one of the built-in "
     "kinds or a user kind.",
     kKcoDescMPC},
    {"kcoC_RigidBody",
     "A rigid body: regions that move with a reference point.",
     kKcoDescRigidBody},
    {"kcoC_ShellSolidCoupling",
     "A coupling of a shell edge to a solid face.",
     kKcoDescShellSolidCoupling, nullptr, kKcoCodesShellSolidCoupling},
    {"kcoC_Tie",
     "A tie between a main surface and a secondary region: the secondary nodes follow the main "
     "surface.",
     kKcoDescTie},
};
}  // namespace

std::span<const cls_ClassDescription> kcoC_DescriptionsTable() { return kKcoDescriptions; }

void kcoC_RegisterDescriptions() {
  const cls_ErrorMessageFn messages = [](int code) { return kcoC_ErrorMessage(static_cast<kcoC_ErrorEnm>(code)); };
  cls_RegisterDescriptions("kco", kcoC_DescriptionsTable(), messages);
}
void kcoC_UnregisterDescriptions() { cls_UnregisterDescriptions("kco"); }
