#pragma once
// The retired layouts of kmaC_SpecificHeat: 203.
#include "kma/kmaC_SpecificHeat.h"
#include "kma/kmaC_OldClassStep.h"

// 203 to 2002: adds law "CONSTANTVOLUME".
void* kmaC_SpecificHeat_Upgrade_203_2002(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
class kmaC_SpecificHeat_203 : public kmaC_OldClassConversion<kmaC_SpecificHeat, 203, 2002, &kmaC_SpecificHeat_Upgrade_203_2002> {};
