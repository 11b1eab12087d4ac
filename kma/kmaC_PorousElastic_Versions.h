#pragma once
// The retired layouts of kmaC_PorousElastic: 203.
#include "kma/kmaC_PorousElastic.h"
#include "kma/kmaC_OldClassStep.h"

// 203 to 2002: adds shear "POISSON".
void* kmaC_PorousElastic_Upgrade_203_2002(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
class kmaC_PorousElastic_203 : public kmaC_OldClassConversion<kmaC_PorousElastic, 203, 2002, &kmaC_PorousElastic_Upgrade_203_2002> {};
