#pragma once
// The retired layouts of kmaC_BrittleCracking: 203.
#include "kma/kmaC_BrittleCracking.h"
#include "kma/kmaC_OldClassStep.h"

// 203 to 2002: adds type "STRESS".
void* kmaC_BrittleCracking_Upgrade_203_2002(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
class kmaC_BrittleCracking_203 : public kmaC_OldClassConversion<kmaC_BrittleCracking, 203, 2002, &kmaC_BrittleCracking_Upgrade_203_2002> {};
