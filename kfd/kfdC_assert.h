#pragma once
// Validation of the field module: one fixed message per code.

enum kfdC_ErrorEnm : int {
  kfdC_NoExpression = 0,
  kfdC_UnknownFieldCopy = 1,
  kfdC_InvalidCsysReference = 2,
  kfdC_BadRectangularVars = 3,
  kfdC_BadCylindricalVars = 4,
  kfdC_BadSphericalVars = 5,
  kfdC_EvaluationFailed = 6,
  kfdC_InvalidWidth = 7,
  kfdC_InvalidRowWidth = 8,
  kfdC_OutOfMemory = 9,
  kfdC_WidthDoesNotMatchType = 10,
  kfdC_DataNotDivisibleByWidth = 11,
  kfdC_DataLengthMismatch = 12,
  kfdC_DefaultsDoNotMatchWidth = 13,
  kfdC_UnsupportedLocation = 14,
  kfdC_DofDefaultsNotSix = 15,
  kfdC_NoDofDefaultsNotOne = 16,
  kfdC_NoDofWidthNotOne = 17,
  kfdC_DofWidthNotTwo = 18,
  kfdC_PartLevelOrientationWithInstances = 19,
  kfdC_NoSuchDiscreteField = 20,
  kfdC_PartLevelWithInstances = 21,
  kfdC_RelativeToleranceNotPositive = 22,
  kfdC_UnknownGridPointPlane = 23,
  kfdC_InvalidGridData = 24,
  kfdC_InvalidXyzData = 25,
  kfdC_IncompatibleElementType = 26,
};

// Where validation failures of the module say they come from.
inline constexpr const char* kfdC_kAssertFile = "QMXOdbKfdC.m/src/kfdC_assert";
inline constexpr int kfdC_kAssertLine = 82;

// The fixed sentence of a code; empty for a code outside the table.
const char* kfdC_ErrorMessage(kfdC_ErrorEnm code);
// Throws nex_PrimException<atr_String, 1> with the code's message when ok is false.
void kfdC_Assert(bool ok, kfdC_ErrorEnm code);
