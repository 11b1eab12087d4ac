#pragma once
// Validation of the load case module: one fixed message per code.

enum klcC_ErrorEnm : int {
  klcC_StepMissing = 0,
  klcC_NothingCombined = 1,
  klcC_NameMissing = 2,
  klcC_LoadRepeated = 3,
  klcC_BoundaryConditionRepeated = 4,
  klcC_ScaleFactorNotFinite = 5,
};

// Where validation failures of the module say they come from.
inline constexpr const char* klcC_kAssertFile = "QMXOdbKlcC.m/src/klcC_assert";
inline constexpr int klcC_kAssertLine = 52;

// The fixed sentence of a code; empty for a code outside the table.
const char* klcC_ErrorMessage(klcC_ErrorEnm code);
// Throws nex_PrimException<atr_String, 1> with the code's message when ok is false.
void klcC_Assert(bool ok, klcC_ErrorEnm code);
