#pragma once
// The retired layouts of kmaC_Density: 203.
#include "kma/kmaC_Density.h"
#include "kma/kmaC_OldClassStep.h"

// 203 to 2002: adds distributionType "UNIFORM", fieldName "".
void* kmaC_Density_Upgrade_203_2002(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
class kmaC_Density_203 : public kmaC_OldClassConversion<kmaC_Density, 203, 2002, &kmaC_Density_Upgrade_203_2002> {};
