#pragma once
// Validation of the connector behavior module: one fixed message per code, and a second table of
// messages that name what they refuse ("%s").
#include "platform/base/cow_String.h"

enum kbeC_ErrorEnm : int {
  kbeC_DependenciesBelowMinimum = 0,
  kbeC_NoDisplacementLimit = 1,
  kbeC_NoMotionCriterion = 2,
  kbeC_NoComponents = 3,
  kbeC_ComponentOutOfRange = 4,
  kbeC_FrequencyNeedsLinear = 5,
  kbeC_StickStiffnessNotPositive = 6,
  kbeC_FrequencyNeedsUncoupled = 7,
  kbeC_IndependentWithUncoupled = 8,
  kbeC_IndependentCount = 9,
  kbeC_IndependentDuplicate = 10,
  kbeC_TableWidthMismatch = 11,
  kbeC_NoIndependentComponent = 12,
  kbeC_IndependentWithLinear = 13,
  kbeC_MinMotionNotBelowMax = 14,
  kbeC_MinForceNotBelowMax = 15,
  kbeC_AffectedComponentOutOfRange = 16,
  kbeC_IndependentOutOfRange = 17,
  kbeC_FrictionNoIndependentComponent = 18,
  kbeC_SlipDirectionOutOfRange = 19,
  kbeC_FrictionTableIncomplete = 20,
  kbeC_StaticBelowKinetic = 21,
  kbeC_ElasticSlipDistanceNotPositive = 22,
  kbeC_DecayCoefficientNegative = 23,
  kbeC_FrictionCoefficientNegative = 24,
  kbeC_PressureNegative = 25,
  kbeC_SlipRateNegative = 26,
  kbeC_StateVariablesNegative = 27,
  kbeC_ShearStressLimitNotPositive = 28,
  kbeC_TestSlipRateNotPositive = 29,
  kbeC_SlipFractionNotPositive = 30,
  kbeC_MissingFrictionCoefficient = 31,
  kbeC_MissingSlipRate = 32,
  kbeC_MissingDecayCoefficient = 33,
  kbeC_ContactForceComponentOutOfRange = 34,
  kbeC_ContactForceNoDerivedComponent = 35,
  kbeC_PotentialComponentOutOfRange = 36,
  kbeC_PotentialNoDerivedComponent = 37,
  kbeC_NoSlipStyle = 38,
  kbeC_NoContactForceStyle = 39,
  kbeC_PositiveExponentNegative = 40,
  kbeC_PotentialExponentNotPositive = 41,
  kbeC_ContactForceTableZero = 42,
  kbeC_NoHardening = 43,
  kbeC_YieldForceZero = 44,
  kbeC_TableColumnsMismatch = 45,
  kbeC_NoAffectedComponents = 46,
  kbeC_NoLimits = 47,
  kbeC_DamageValueOutOfRange = 48,
  kbeC_DamageZeroOutsideFirstRow = 49,
  kbeC_ExponentialLawNotPositive = 50,
  kbeC_NoIntrinsicComponent = 51,
  kbeC_IntrinsicOutOfRange = 52,
  kbeC_NoIndependentComponentType = 53,
  kbeC_TermNoIndependentComponent = 54,
  kbeC_DerivedComponentUnavailable = 55,
  kbeC_RegularizeOffWithoutTolerance = 56,
  kbeC_DefaultToleranceWithRegularization = 57,
  kbeC_DefaultRateFactorWithRateFactor = 58,
  kbeC_RateFactorOutOfRange = 59,
  kbeC_StructuralNonlinear = 60,
  kbeC_TemperatureNeedsViscous = 61,
  kbeC_StructuralDependencies = 62,
};

enum kbeC_ContentErrorEnm : int {
  kbeC_UnavailableComponents = 0,
  kbeC_RateOptionsNotAllowed = 1,
};

// The fixed sentence of a code; empty for a code outside the table.
const char* kbeC_ErrorMessage(kbeC_ErrorEnm code);
// The message of a content code with its "%s" in place; empty for a code outside the table.
cow_String kbeC_ContentErrorMessage(kbeC_ContentErrorEnm code, const cow_String& what);
// Throw nex_PrimException<atr_String, 1> with the code's message when ok is false.
void kbeC_Assert(bool ok, kbeC_ErrorEnm code);
void kbeC_AssertContent(bool ok, kbeC_ContentErrorEnm code, const cow_String& what);
