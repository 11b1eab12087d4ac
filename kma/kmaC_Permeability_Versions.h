#pragma once
// The retired layouts of kmaC_Permeability: 203, 404, 1502.
#include "kma/kmaC_Permeability.h"
#include "kma/kmaC_OldClassStep.h"

// 203 to 404: adds specificWeight 0.0.
void* kmaC_Permeability_Upgrade_203_404(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
class kmaC_Permeability_203 : public kmaC_OldClassConversion<kmaC_Permeability, 203, 404, &kmaC_Permeability_Upgrade_203_404> {};
// 404 to 1502: adds inertialDragCoefficient 0.142887.
void* kmaC_Permeability_Upgrade_404_1502(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
class kmaC_Permeability_404 : public kmaC_OldClassConversion<kmaC_Permeability, 404, 1502, &kmaC_Permeability_Upgrade_404_1502> {};
// 1502 to 2002: the fields are unchanged.
class kmaC_Permeability_1502 : public kmaC_OldClassStep<kmaC_Permeability, 1502, 2002> {};
