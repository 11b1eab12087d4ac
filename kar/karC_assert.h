#pragma once
// Validation of the remeshing rule module: one fixed message per code.

enum karC_ErrorEnm : int {
  karC_StepMissing = 0,
  karC_RegionMissing = 1,
  karC_VariablesMissing = 2,
  karC_VariableRepeated = 3,
  karC_FrequencyNotPositive = 4,
  karC_ErrorTargetCountMismatch = 5,
  karC_ErrorTargetNotPositive = 6,
  karC_RefinementFactorOutOfRange = 7,
  karC_CoarseningFactorOutOfRange = 8,
  karC_MinElementSizeNotPositive = 9,
  karC_MaxElementSizeNotPositive = 10,
  karC_ElementSizeOrder = 11,
  karC_ElementCountLimitNotPositive = 12,
};

// Where validation failures of the module say they come from.
inline constexpr const char* karC_kAssertFile = "QMXOdbKarC.m/src/karC_assert";
inline constexpr int karC_kAssertLine = 64;

// The fixed sentence of a code; empty for a code outside the table.
const char* karC_ErrorMessage(karC_ErrorEnm code);
// Throws nex_PrimException<atr_String, 1> with the code's message when ok is false.
void karC_Assert(bool ok, karC_ErrorEnm code);
