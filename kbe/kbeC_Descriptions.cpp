#include "kbe/kbeC_Descriptions.h"

#include "kbe/kbeC_assert.h"

// What the classes of the module and their members mean, by scripting name.
namespace {
constexpr cls_MemberDescription kKbeDescCDCTerm[] = {
    {"termOperator",
     "How the term combines its intrinsic components: root of the sum of squares, plain sum or "
     "Macauley bracket (positive part)"},
    {"termSign", "Sign the term contributes to the derived component with"},
    {"localDependency", "Whether the term's weighting table depends on independent components"},
    {"indepCompType", "Whether the independent components are taken as positions or as motions"},
    {"tempDependency",
     "Whether the weighting table depends on temperature (adds a temperature column)"},
    {"fieldDependencies",
     "Number of field variables the weighting table depends on (one column each)"},
    {"intrinsicComponents",
     "Connector components the term combines (component numbers 1 to 6, at least one)"},
    {"indepComponents",
     "Components the weighting depends on (component numbers; needed with localDependency)"},
    {"options", "Options of the data table (optional; rate options must stay at their defaults)"},
};
constexpr int kKbeCodesCDCTerm[] = {51, 52, 53, 54};
constexpr cls_MemberDescription kKbeDescConnectorDamage[] = {
    {"components", "Connector components it acts on (list of component numbers, 1 to 6)"},
    {"coupling", "Whether the components act uncoupled or coupled"},
    {"criterion", "Quantity that initiates damage: force, motion or plastic motion"},
    {"initiationTemperature",
     "Whether the initiation table depends on temperature (adds a temperature column)"},
    {"initiationPotentialOperator",
     "How the initiation potentials combine: summed, or the largest one taken (coupled damage)"},
    {"initiationPotentialExponent", "Exponent of the summed initiation potential (above 0)"},
    {"initiationDependencies",
     "Number of field variables the initiation table depends on (one column each)"},
    {"initiationTable",
     "Initiation data: the force or motion limits at which damage starts (table)"},
    {"initiationOptions",
     "Options of the initiation table (optional; rate options only with criterion PLASTIC_MOTION)"},
    {"initiationPotentials", "Terms of the initiation potential of coupled damage"},
    {"lastIniId", "Last id given to an initiation potential (read-only; ids are never reused)"},
    {"evolution", "Whether damage evolves after initiation (false: initiation only)"},
    {"evolutionType", "Whether damage evolves with relative motion or with dissipated energy"},
    {"softening", "Shape of the damage evolution: linear, exponential or tabular"},
    {"useAffected",
     "Whether damage degrades the affectedComponents instead of the components it is measured on"},
    {"affectedComponents",
     "Components that the damage degrades (component numbers 1 to 6; needed with useAffected)"},
    {"degradation", "How damage from several mechanisms combines: the largest one, or multiplied"},
    {"evolutionTemperature",
     "Whether the evolution table depends on temperature (adds a temperature column)"},
    {"evolutionDependencies",
     "Number of field variables the evolution table depends on (one column each)"},
    {"evolutionPotentialOperator",
     "How the evolution potentials combine: summed, or the largest one taken (coupled damage)"},
    {"evolutionPotentialExponent", "Exponent of the summed evolution potential (above 0)"},
    {"evolutionTable",
     "Evolution data; with tabular softening column 1 the damage variable (0 to 1, zero only in "
     "the first row)"},
    {"evolutionOptions", "Options of the evolution table (optional; rate options not accepted)"},
    {"evolutionPotentials", "Terms of the evolution potential of coupled damage"},
    {"lastEvoId", "Last id given to an evolution potential (read-only; ids are never reused)"},
};
constexpr int kKbeCodesConnectorDamage[] = {4, 46, 16, 41, 48, 49};
constexpr cls_MemberDescription kKbeDescConnectorDamping[] = {
    {"components", "Connector components it acts on (list of component numbers, 1 to 6)"},
    {"behavior",
     "Whether the damping force is linear or nonlinear in the relative velocity (structural: "
     "linear "
     "only)"},
    {"coupling", "Whether the components act uncoupled or coupled"},
    {"independentComponents", "Components that coupled data depend on (list of component numbers)"},
    {"options", "Options of the data table (optional)"},
    {"connDampType",
     "Kind of damping: viscous (velocity-proportional) or structural (no temperature or field "
     "dependence)"},
};
constexpr int kKbeCodesConnectorDamping[] = {60, 61, 62, 3, 4, 0, 5, 7, 13, 8, 9, 10, 12, 11};
constexpr cls_MemberDescription kKbeDescConnectorElasticity[] = {
    {"components", "Connector components it acts on (list of component numbers, 1 to 6)"},
    {"behavior",
     "Whether the elastic response is linear, nonlinear (force against motion) or rigid"},
    {"coupling", "Whether the components act uncoupled or coupled"},
    {"independentComponents", "Components that coupled data depend on (list of component numbers)"},
    {"options", "Options of the data table (optional)"},
};
constexpr int kKbeCodesConnectorElasticity[] = {3, 4, 0, 5, 7, 13, 8, 9, 10, 12, 11};
constexpr cls_MemberDescription kKbeDescConnectorFailure[] = {
    {"components", "Connector components it acts on (list of component numbers, 1 to 6)"},
    {"releaseComponent",
     "Component released on failure (1 to 6), or \"ALL\" to release every component"},
    {"minMotion", "Smallest relative motion of the components (null: unspecified)"},
    {"maxMotion", "Largest relative motion of the components (null: unspecified)"},
    {"minForce", "Smallest force or moment in the components (null: unspecified; below maxForce)"},
    {"maxForce", "Largest force or moment in the components (null: unspecified)"},
};
constexpr int kKbeCodesConnectorFailure[] = {3, 4, 16, 2, 14, 15};
constexpr cls_MemberDescription kKbeDescConnectorFriction[] = {
    {"frictionModel",
     "Whether friction follows the predefined model of the connection or user-customized "
     "contact forces"},
    {"slipStyle", "Whether the slip direction is specified (tangentDirection) or computed"},
    {"tangentDirection", "Component along which the connector slips (1 to 6)"},
    {"stickStiffness", "Stiffness of the connector while it sticks (above 0; null: unspecified)"},
    {"componentType",
     "Whether the friction data depend on positions or motions of independent components, or "
     "on none"},
    {"slipDependency", "Whether the friction data depend on accumulated slip (adds a slip column)"},
    {"useContactForceComponent",
     "Whether a connector component (contactForceComponent) supplies the contact force"},
    {"contactForceStyle",
     "Whether the contact-force component is given by number or as a derived component"},
    {"contactForceComponent", "Component that carries the contact force (1 to 6)"},
    {"forcePotentialOperator",
     "How the friction potentials combine: summed, or the largest one taken"},
    {"forcePotentialExponent", "Exponent of the summed friction potential (above 0)"},
    {"connectorPotentials",
     "Terms of the friction potential that measures the force tangent to the slip"},
    {"lastId", "Last id given to a friction potential (read-only; ids are never reused)"},
    {"independentComponents", "Components that coupled data depend on (list of component numbers)"},
    {"tangentialBehavior",
     "The friction law: friction coefficient, formulation and elastic-slip limit (optional)"},
    {"derivedComponent", "The derived component the behavior acts on (optional)"},
    {"contactForces", "Contact-force definitions of a user-customized friction"},
    {"options", "Options of the data table (optional)"},
};
constexpr int kKbeCodesConnectorFriction[] = {6, 18, 17, 19, 34, 35, 38, 39, 41, 42};
constexpr cls_MemberDescription kKbeDescConnectorLock[] = {
    {"components", "Connector components it acts on (list of component numbers, 1 to 6)"},
    {"lockingComponent", "Component that locks (1 to 6), or \"ALL\" to lock every component"},
    {"minMotion", "Smallest relative motion of the components (null: unspecified)"},
    {"maxMotion", "Largest relative motion of the components (null: unspecified)"},
    {"minForce", "Smallest force or moment in the components (null: unspecified; below maxForce)"},
    {"maxForce", "Largest force or moment in the components (null: unspecified)"},
};
constexpr int kKbeCodesConnectorLock[] = {3, 4, 16, 2, 14, 15};
constexpr cls_MemberDescription kKbeDescConnectorOptions[] = {
    {"useBehRegSettings",
     "Take the regularization settings of the owning behavior instead of the three below"},
    {"regularize", "Regularize the table data"},
    {"defaultTolerance", "Use the default regularization tolerance"},
    {"regularization",
     "Regularization tolerance (default 0.03; set defaultTolerance false to change it)"},
    {"defaultRateFactor", "Use the default rate factor"},
    {"rateFactor",
     "Rate factor that filters rate-dependent data (above 0, at most 1; default 0.9, set "
     "defaultRateFactor false to change it)"},
    {"interpolation",
     "How the table is interpolated between its points: linearly or logarithmically"},
    {"useBehExtSettings", "Take the extrapolation setting of the owning behavior"},
    {"extrapolation", "How the table is extrapolated beyond its range: held constant or linearly"},
};
constexpr int kKbeCodesConnectorOptions[] = {56, 57, 58, 59};
constexpr cls_MemberDescription kKbeDescConnectorPlasticity[] = {
    {"components", "Connector components it acts on (list of component numbers, 1 to 6)"},
    {"coupling", "Whether the components act uncoupled or coupled"},
    {"isotropic", "Whether isotropic hardening is defined (isotropic, kinematic or both)"},
    {"isotropicType",
     "Form of the isotropic hardening data: tabular (yield force, plastic motion) or exponential "
     "law (yield force and two parameters, above 0)"},
    {"isotropicTemperature",
     "Whether the isotropic table depends on temperature (adds a temperature column)"},
    {"isotropicDependencies",
     "Number of field variables the isotropic table depends on (one column each)"},
    {"isotropicTable", "Isotropic hardening data; column 1 the yield force or moment (non-zero)"},
    {"isotropicOptions",
     "Options of the isotropic table (optional; rate options only with TABULAR)"},
    {"kinematic", "Whether kinematic hardening is defined"},
    {"kinematicType",
     "Form of the kinematic hardening data: half-cycle test data (force, plastic motion), "
     "stabilized test data (adds the cycle number) or parameters"},
    {"kinematicTemperature",
     "Whether the kinematic table depends on temperature (adds a temperature column)"},
    {"kinematicDependencies",
     "Number of field variables the kinematic table depends on (one column each)"},
    {"kinematicTable", "Kinematic hardening data; column 1 the yield force or moment (non-zero)"},
    {"kinematicOptions", "Options of the kinematic table (optional; rate options not accepted)"},
    {"forcePotentialOperator",
     "How the plastic potentials combine: summed, or the largest one taken"},
    {"forcePotentialExponent", "Exponent of the summed plastic potential (above 0)"},
    {"connectorPotentials", "Terms of the plastic potential of coupled plasticity"},
    {"lastId", "Last id given to a plastic potential (read-only; ids are never reused)"},
};
constexpr int kKbeCodesConnectorPlasticity[] = {4, 43, 44, 45, 50, 41};
constexpr cls_MemberDescription kKbeDescConnectorPotential[] = {
    {"componentStyle", "Whether the term acts on a component by number or on a derived component"},
    {"componentNumber", "Component the term acts on (1 to 6; with COMPONENT_NUMBER)"},
    {"componentName", "Name of the derived component the term acts on (with DERIVED_COMPONENT)"},
    {"sign", "Sign the term contributes to the potential with"},
    {"scaleFactor", "Scale applied to the component's value within the term"},
    {"positiveExponent", "Power the term is raised to (at least 0)"},
    {"shiftFactor", "Shift applied to the component's value within the term"},
    {"hFunction",
     "Function applied to the component's value: absolute value, Macauley bracket or identity"},
    {"derivedComponent", "The derived component the behavior acts on (optional)"},
};
constexpr int kKbeCodesConnectorPotential[] = {37, 36, 40};
constexpr cls_MemberDescription kKbeDescConnectorSection[] = {
    {"behaviorOptions",
     "Behavior options of the section (elasticity, damping, plasticity, friction, damage, "
     "failure, lock, stop), in order"},
};
constexpr cls_MemberDescription kKbeDescConnectorStop[] = {
    {"components", "Connector components it acts on (list of component numbers, 1 to 6)"},
    {"minMotion", "Smallest relative motion of the components (null: unspecified)"},
    {"maxMotion", "Largest relative motion of the components (null: unspecified)"},
};
constexpr int kKbeCodesConnectorStop[] = {3, 4, 1, 14};
constexpr cls_MemberDescription kKbeDescContactForce[] = {
    {"independentComponent", "Component the contact-force data depend on (1 to 6)"},
    {"contactForceStyle",
     "Whether the contact force is carried by a component given by number or by a derived "
     "component"},
    {"contactForceComponent",
     "Component that carries the contact force (1 to 6; with COMPONENT_NUMBER)"},
    {"derivedComponent", "The derived component the behavior acts on (optional)"},
};
constexpr int kKbeCodesContactForce[] = {17, 34, 35, 42};
constexpr cls_MemberDescription kKbeDescDerivedComponent[] = {
    {"name", "Its name"},
    {"cdcTerms", "Terms that make up the derived component, in order"},
};
constexpr cls_MemberDescription kKbeDescTangentialBehavior[] = {
    {"formulation",
     "Friction law: penalty (coefficient from the table) or exponential decay from static to "
     "kinetic friction"},
    {"slipRateDependency",
     "Whether the friction coefficient depends on slip rate (column 2 the slip rate, at "
     "least 0)"},
    {"pressureDependency",
     "Whether the friction coefficient depends on contact pressure (next column the "
     "pressure, at least 0)"},
    {"exponentialDecayDefinition",
     "How exponential decay is given: coefficients (static, kinetic, decay) or "
     "test data"},
    {"shearStressLimit",
     "Largest shear stress the contact transmits before slipping (above 0; penalty)"},
    {"maximumElasticSlip",
     "Whether the allowed elastic slip is a fraction of a characteristic length or an "
     "absolute distance"},
    {"fraction",
     "Allowed elastic slip as a fraction of the characteristic length (above 0; with FRACTION)"},
    {"absoluteDistance", "Allowed elastic slip as a distance (above 0; with ABSOLUTE_DISTANCE)"},
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
     kKbeDescConnectorElasticity, nullptr, kKbeCodesConnectorElasticity},
    {"kbeC_ConnectorFailure",
     "Failure of a connector: the motion and force limits beyond which components are released.",
     kKbeDescConnectorFailure, nullptr, kKbeCodesConnectorFailure},
    {"kbeC_ConnectorFriction",
     "Friction of a connector: predefined or user-customized, with its contact forces (internal "
     "force data, a contact-force component or potentials) and its friction law.",
     kKbeDescConnectorFriction, nullptr, kKbeCodesConnectorFriction},
    {"kbeC_ConnectorLock",
     "Locking of a connector: the motion and force limits at which components lock.",
     kKbeDescConnectorLock, nullptr, kKbeCodesConnectorLock},
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

std::span<const cls_ClassDescription> kbeC_DescriptionsTable() {
  return kKbeDescriptions;
}

void kbeC_RegisterDescriptions() {
  const cls_ErrorMessageFn messages = [](int code) {
    return kbeC_ErrorMessage(static_cast<kbeC_ErrorEnm>(code));
  };
  cls_RegisterDescriptions("kbe", kbeC_DescriptionsTable(), messages);
}
void kbeC_UnregisterDescriptions() {
  cls_UnregisterDescriptions("kbe");
}
