#include "kbe/kbeC_Descriptions.h"
#include "kbe/kbeC_assert.h"

// What the classes of the module and their members mean, by scripting name.
namespace {
constexpr cls_MemberDescription kKbeDescCDCTerm[] = {
    {"termOperator", "Term operator"},
    {"termSign", "Term sign"},
    {"localDependency", "Local dependency"},
    {"indepCompType", "Indep comp type"},
    {"tempDependency", "Temp dependency"},
    {"fieldDependencies", "Field dependencies"},
    {"intrinsicComponents", "Intrinsic components"},
    {"indepComponents", "Indep components"},
    {"options", "Options of the data table (optional)"},
};
constexpr int kKbeCodesCDCTerm[] = {51, 52, 53, 54};
constexpr cls_MemberDescription kKbeDescConnectorDamage[] = {
    {"components", "Connector components it acts on (list of component numbers, 1 to 6)"},
    {"coupling", "Whether the components act uncoupled or coupled"},
    {"criterion", "Criterion"},
    {"initiationTemperature", "Initiation temperature"},
    {"initiationPotentialOperator", "Initiation potential operator"},
    {"initiationPotentialExponent", "Initiation potential exponent"},
    {"initiationDependencies", "Initiation dependencies"},
    {"initiationTable", "Initiation table"},
    {"initiationOptions", "Initiation options"},
    {"initiationPotentials", "Initiation potentials"},
    {"lastIniId", "Last ini id"},
    {"evolution", "Evolution"},
    {"evolutionType", "Evolution type"},
    {"softening", "Softening"},
    {"useAffected", "Use affected"},
    {"affectedComponents", "Affected components"},
    {"degradation", "Degradation"},
    {"evolutionTemperature", "Evolution temperature"},
    {"evolutionDependencies", "Evolution dependencies"},
    {"evolutionPotentialOperator", "Evolution potential operator"},
    {"evolutionPotentialExponent", "Evolution potential exponent"},
    {"evolutionTable", "Evolution table"},
    {"evolutionOptions", "Evolution options"},
    {"evolutionPotentials", "Evolution potentials"},
    {"lastEvoId", "Last evo id"},
};
constexpr int kKbeCodesConnectorDamage[] = {4, 46, 16, 41, 48, 49};
constexpr cls_MemberDescription kKbeDescConnectorDamping[] = {
    {"components", "Connector components it acts on (list of component numbers, 1 to 6)"},
    {"behavior", "Behavior"},
    {"coupling", "Whether the components act uncoupled or coupled"},
    {"independentComponents", "Components that coupled data depend on (list of component numbers)"},
    {"options", "Options of the data table (optional)"},
    {"connDampType", "Conn damp type"},
};
constexpr int kKbeCodesConnectorDamping[] = {60, 61, 62};
constexpr cls_MemberDescription kKbeDescConnectorElasticity[] = {
    {"components", "Connector components it acts on (list of component numbers, 1 to 6)"},
    {"behavior", "Behavior"},
    {"coupling", "Whether the components act uncoupled or coupled"},
    {"independentComponents", "Components that coupled data depend on (list of component numbers)"},
    {"options", "Options of the data table (optional)"},
};
constexpr cls_MemberDescription kKbeDescConnectorFailure[] = {
    {"components", "Connector components it acts on (list of component numbers, 1 to 6)"},
    {"releaseComponent", "Release component"},
    {"minMotion", "Smallest relative motion of the components (null: unspecified)"},
    {"maxMotion", "Largest relative motion of the components (null: unspecified)"},
    {"minForce", "Min force"},
    {"maxForce", "Max force"},
};
constexpr cls_MemberDescription kKbeDescConnectorFriction[] = {
    {"frictionModel", "Friction model"},
    {"slipStyle", "Slip style"},
    {"tangentDirection", "Tangent direction"},
    {"stickStiffness", "Stick stiffness"},
    {"componentType", "Component type"},
    {"slipDependency", "Slip dependency"},
    {"useContactForceComponent", "Use contact force component"},
    {"contactForceStyle", "Contact force style"},
    {"contactForceComponent", "Contact force component"},
    {"forcePotentialOperator", "Force potential operator"},
    {"forcePotentialExponent", "Force potential exponent"},
    {"connectorPotentials", "Connector potentials"},
    {"lastId", "Last id"},
    {"independentComponents", "Components that coupled data depend on (list of component numbers)"},
    {"tangentialBehavior", "Tangential behavior"},
    {"derivedComponent", "The derived component the behavior acts on (optional)"},
    {"contactForces", "Contact forces"},
    {"options", "Options of the data table (optional)"},
};
constexpr int kKbeCodesConnectorFriction[] = {6, 18, 17, 19, 34, 35, 38, 39, 41, 42};
constexpr cls_MemberDescription kKbeDescConnectorLock[] = {
    {"components", "Connector components it acts on (list of component numbers, 1 to 6)"},
    {"lockingComponent", "Locking component"},
    {"minMotion", "Smallest relative motion of the components (null: unspecified)"},
    {"maxMotion", "Largest relative motion of the components (null: unspecified)"},
    {"minForce", "Min force"},
    {"maxForce", "Max force"},
};
constexpr cls_MemberDescription kKbeDescConnectorOptions[] = {
    {"useBehRegSettings",
     "Take the regularization settings of the owning behavior instead of the three below"},
    {"regularize", "Regularize the table data"},
    {"defaultTolerance", "Use the default regularization tolerance"},
    {"regularization", "Regularization tolerance"},
    {"defaultRateFactor", "Use the default rate factor"},
    {"rateFactor", "Rate factor (static default accessor rateFactorDef() returns 0.9)"},
    {"interpolation", "Interpolation (table interpolation: \"LINEAR\" (0), \"LOGARITHMIC\" (1))"},
    {"useBehExtSettings", "Take the extrapolation setting of the owning behavior"},
    {"extrapolation", "Extrapolation (table extrapolation: \"CONSTANT\" (0), \"LINEAR\" (1))"},
};
constexpr int kKbeCodesConnectorOptions[] = {56, 57, 58, 59};
constexpr cls_MemberDescription kKbeDescConnectorPlasticity[] = {
    {"components", "Connector components it acts on (list of component numbers, 1 to 6)"},
    {"coupling", "Whether the components act uncoupled or coupled"},
    {"isotropic", "Isotropic"},
    {"isotropicType", "Isotropic type"},
    {"isotropicTemperature", "Isotropic temperature"},
    {"isotropicDependencies", "Isotropic dependencies"},
    {"isotropicTable", "Isotropic table"},
    {"isotropicOptions", "Isotropic options"},
    {"kinematic", "Kinematic"},
    {"kinematicType", "Kinematic type"},
    {"kinematicTemperature", "Kinematic temperature"},
    {"kinematicDependencies", "Kinematic dependencies"},
    {"kinematicTable", "Kinematic table"},
    {"kinematicOptions", "Kinematic options"},
    {"forcePotentialOperator", "Force potential operator"},
    {"forcePotentialExponent", "Force potential exponent"},
    {"connectorPotentials", "Connector potentials"},
    {"lastId", "Last id"},
};
constexpr int kKbeCodesConnectorPlasticity[] = {4, 43, 44, 45, 50, 41};
constexpr cls_MemberDescription kKbeDescConnectorPotential[] = {
    {"componentStyle", "Component style"},
    {"componentNumber", "Component number"},
    {"componentName", "Component name"},
    {"sign", "Sign"},
    {"scaleFactor", "Scale factor"},
    {"positiveExponent", "Positive exponent"},
    {"shiftFactor", "Shift factor"},
    {"hFunction", "H function"},
    {"derivedComponent", "The derived component the behavior acts on (optional)"},
};
constexpr int kKbeCodesConnectorPotential[] = {37, 36, 40};
constexpr cls_MemberDescription kKbeDescConnectorSection[] = {
    {"behaviorOptions", "Behavior options"},
};
constexpr cls_MemberDescription kKbeDescConnectorStop[] = {
    {"components", "Connector components it acts on (list of component numbers, 1 to 6)"},
    {"minMotion", "Smallest relative motion of the components (null: unspecified)"},
    {"maxMotion", "Largest relative motion of the components (null: unspecified)"},
};
constexpr int kKbeCodesConnectorStop[] = {1, 14};
constexpr cls_MemberDescription kKbeDescContactForce[] = {
    {"independentComponent", "Independent component"},
    {"contactForceStyle", "Contact force style"},
    {"contactForceComponent", "Contact force component"},
    {"derivedComponent", "The derived component the behavior acts on (optional)"},
};
constexpr int kKbeCodesContactForce[] = {17, 34, 35, 42};
constexpr cls_MemberDescription kKbeDescDerivedComponent[] = {
    {"name", "Its name"},
    {"cdcTerms", "Cdc terms"},
};
constexpr cls_MemberDescription kKbeDescTangentialBehavior[] = {
    {"formulation", "Formulation"},
    {"slipRateDependency", "Slip rate dependency"},
    {"pressureDependency", "Pressure dependency"},
    {"exponentialDecayDefinition", "Exponential decay definition"},
    {"shearStressLimit", "Shear stress limit"},
    {"maximumElasticSlip", "Maximum elastic slip"},
    {"fraction", "Fraction"},
    {"absoluteDistance", "Absolute distance"},
};
constexpr int kKbeCodesTangentialBehavior[] = {31, 20, 24, 26, 25, 28, 33, 21, 23, 32, 29, 30, 22};
constexpr cls_ClassDescription kKbeDescriptions[] = {
    {"kbeC_CDCTerm",
     "One term of a coupled derived component: an operator over intrinsic components, optionally "
     "weighted by a table over independent components.",
     kKbeDescCDCTerm, nullptr, kKbeCodesCDCTerm},
    {"kbeC_ConnectorBehaviorOption",
     "A behavior option of a connector section: the abstract root of the family of elasticity, "
     "damping, plasticity, friction, damage, failure, lock and stop.",
     {}},
    {"kbeC_ConnectorDamage",
     "Damage of connector components: the initiation criterion and the evolution of damage, each "
     "optionally coupled through a potential.",
     kKbeDescConnectorDamage, nullptr, kKbeCodesConnectorDamage},
    {"kbeC_ConnectorDamping",
     "Damping of connector components, viscous or structural, linear or nonlinear, coupled or not.",
     kKbeDescConnectorDamping, nullptr, kKbeCodesConnectorDamping},
    {"kbeC_ConnectorElasticity",
     "Elastic behavior of connector components: linear, nonlinear or rigid, coupled or not.",
     kKbeDescConnectorElasticity},
    {"kbeC_ConnectorFailure",
     "Failure of a connector: the motion and force limits beyond which components are released.",
     kKbeDescConnectorFailure},
    {"kbeC_ConnectorFriction",
     "Friction of a connector: predefined or user-customized, with its contact forces (internal "
     "force data, a contact-force component or potentials) and its friction law.",
     kKbeDescConnectorFriction, nullptr, kKbeCodesConnectorFriction},
    {"kbeC_ConnectorLock",
     "Locking of a connector: the motion and force limits at which components lock.",
     kKbeDescConnectorLock},
    {"kbeC_ConnectorOptions",
     "The table options of a connector behavior or of a derived-component term: regularization, "
     "rate factor, interpolation and extrapolation of the table data.",
     kKbeDescConnectorOptions, nullptr, kKbeCodesConnectorOptions},
    {"kbeC_ConnectorPlasticity",
     "Plasticity of connector components: isotropic and kinematic hardening, uncoupled or coupled "
     "through a force potential.",
     kKbeDescConnectorPlasticity, nullptr, kKbeCodesConnectorPlasticity},
    {"kbeC_ConnectorPotential",
     "One term of a connector potential: a component (by number or a derived component), scaled, "
     "shifted and raised to a power.",
     kKbeDescConnectorPotential, nullptr, kKbeCodesConnectorPotential},
    {"kbeC_ConnectorSection",
     "A connector section: the ordered list of behavior options that connectors of the section "
     "carry.",
     kKbeDescConnectorSection},
    {"kbeC_ConnectorStop",
     "Stops of a connector: the lower and upper limits of the motion of its components.",
     kKbeDescConnectorStop, nullptr, kKbeCodesConnectorStop},
    {"kbeC_ContactForce",
     "One contact-force definition of a friction behavior: the component (by number or derived) "
     "that carries the contact force, and its table.",
     kKbeDescContactForce, nullptr, kKbeCodesContactForce},
    {"kbeC_DerivedComponent",
     "A named derived component: a combination of terms over the connector's components.",
     kKbeDescDerivedComponent},
    {"kbeC_ConnectorBehaviorOptionIMPLSC",
     "Shortcuts to connector behaviors for the command layer: an option by its position in the "
     "option list of a section of the model's \"connectorSections\", and the members of an option "
     "(its table options, potential lists, tangential behavior, derived component).",
     {}},
    {"kbeC_TangentialBehavior",
     "The friction law of a friction behavior: penalty or exponential decay, with the limits of "
     "elastic slip.",
     kKbeDescTangentialBehavior, nullptr, kKbeCodesTangentialBehavior},
};
}  // namespace

std::span<const cls_ClassDescription> kbeC_DescriptionsTable() { return kKbeDescriptions; }

void kbeC_RegisterDescriptions() {
  const cls_ErrorMessageFn messages = [](int code) { return kbeC_ErrorMessage(static_cast<kbeC_ErrorEnm>(code)); };
  cls_RegisterDescriptions("kbe", kbeC_DescriptionsTable(), messages);
}
void kbeC_UnregisterDescriptions() { cls_UnregisterDescriptions("kbe"); }
