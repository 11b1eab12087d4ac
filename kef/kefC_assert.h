#pragma once
// Validation of the engineering feature module: one fixed message per code.

enum kefC_ErrorEnm : int {
  kefC_NoMassOrInertia = 0,
  kefC_NegativeDiagonalInertia = 1,
  kefC_MidNodeOutOfRange = 2,
  kefC_SpringNothingApplied = 3,
  kefC_GroundRegionInvalid = 4,
  kefC_GroundDofUnspecified = 5,
  kefC_NoPointPair = 6,
  kefC_Dof1Unspecified = 7,
  kefC_Dof2Unspecified = 8,
  kefC_DashpotCoeffNotPositive = 9,
  kefC_SpringStiffnessNotPositive = 10,
  kefC_NonstructuralMassNegative = 11,
  kefC_InfluenceRadiusNotPositive = 12,
  kefC_SearchRadiusNotPositive = 13,
  kefC_PhysicalRadiusNotPositive = 14,
  kefC_MaximumLayersNotPositive = 15,
  kefC_NoConnectorSection = 16,
  kefC_MpcSectionNotBeam = 17,
  kefC_SingularityRadiusNotPositive = 18,
  kefC_NodeIdLength = 19,
  kefC_HasCrackFrontLength = 20,
  kefC_CrackPlaneDistLength = 21,
  kefC_CrackFrontDistLength = 22,
  kefC_CrackLocationMissing = 23,
  kefC_SuppressedCrackEdited = 24,
  kefC_SuppressedInertiaEdited = 25,
  kefC_SuppressedSpringEdited = 26,
  kefC_SuppressedFastenerEdited = 27,
  kefC_NoTemplateModel = 28,
  kefC_NoControlSet = 29,
  kefC_NoPropertyPrefix = 30,
  kefC_PrefixHasUnderscore = 31,
  kefC_SurfaceCountsDiffer = 32,
  kefC_NoSurfaces = 33,
  kefC_BlankSurfaceName = 34,
  kefC_IsotropicAndAnisotropicMass = 35,
  kefC_NoInteraction = 36,
  kefC_NoInitiationStep = 37,
  kefC_PrintFrequencyNegative = 38,
  kefC_InteractionNotStandardContactPair = 39,
  kefC_StepNotStandard = 40,
  kefC_TargetSurfaceEdgeBased = 41,
  kefC_Dummy = 42,
};

// Where validation failures of the module say they come from.
inline constexpr const char* kefC_kAssertFile = "QMXOdbKefC.m/src/kefC_assert";
inline constexpr int kefC_kAssertLine = 62;

// The fixed sentence of a code; empty for a code outside the table.
const char* kefC_ErrorMessage(kefC_ErrorEnm code);
// Throws nex_PrimException<atr_String, 1> with the code's message when ok is false.
void kefC_Assert(bool ok, kefC_ErrorEnm code);
