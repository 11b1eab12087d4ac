#pragma once
// The retired layouts of kmaC_MagneticPermeability: 1628.
#include "kma/kmaC_MagneticPermeability.h"
#include "kma/kmaC_OldClassStep.h"

// 1628 to 1701: adds nonlinearBH false.
void* kmaC_MagneticPermeability_Upgrade_1628_1701(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
class kmaC_MagneticPermeability_1628 : public kmaC_OldClassConversion<kmaC_MagneticPermeability, 1628, 1701, &kmaC_MagneticPermeability_Upgrade_1628_1701> {};
