#pragma once
// Validation of the constraint module: one fixed message per code.

enum kcoC_ErrorEnm : int {
  kcoC_EquationTooFewTerms = 0,
  kcoC_ContainerEmpty = 1,
  kcoC_ConstraintMissing = 2,
  kcoC_UnknownConstraintType = 3,
  kcoC_DofNotPositive = 4,
  kcoC_TieMainNotSurface = 5,
  kcoC_TieAdjustSetInvalid = 6,
  kcoC_TieRotationsInExplicit = 7,
  kcoC_DistributingDisplacementsFree = 8,
  kcoC_DisplayBodyWithoutInstance = 9,
};

// Where validation failures of the module say they come from.
inline constexpr const char* kcoC_kAssertFile = "QMXOdbKcoC.m/src/kcoC_assert";
inline constexpr int kcoC_kAssertLine = 58;

// The fixed sentence of a code; empty for a code outside the table.
const char* kcoC_ErrorMessage(kcoC_ErrorEnm code);
// Throws nex_PrimException<atr_String, 1> with the code's message when ok is false.
void kcoC_Assert(bool ok, kcoC_ErrorEnm code);
