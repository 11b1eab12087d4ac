#pragma once
// Validation of the adaptive mesh module: one fixed message per code.

enum kadC_ErrorEnm : int {
  kadC_FrequencyNotPositive = 0,
  kadC_InitialSweepsNegative = 1,
  kadC_SweepsPerIncrementNotPositive = 2,
  kadC_UpwindingFactorOutOfRange = 3,
  kadC_InitialFeatureAngleOutOfRange = 4,
  kadC_TransitionFeatureAngleOutOfRange = 5,
  kadC_VolumetricWeightNegative = 6,
  kadC_LaplacianWeightNegative = 7,
  kadC_EquipotentialWeightNegative = 8,
  kadC_MeshConstraintAngleOutOfRange = 9,
  kadC_WeightSumAboveOne = 10,
  kadC_RegionMissing = 11,
  kadC_CurvatureRefinementNegative = 12,
  kadC_ProjectionWeightNegative = 13,
};

// The fixed sentence of a code; empty for a code outside the table.
const char* kadC_ErrorMessage(kadC_ErrorEnm code);
// Throws nex_PrimException<atr_String, 1> with the code's message when ok is false.
void kadC_Assert(bool ok, kadC_ErrorEnm code);
