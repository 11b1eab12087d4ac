#pragma once
// The retired layouts of kmaC_EosShear: 203, 1338.
#include "kma/kmaC_EosShear.h"
#include "kma/kmaC_OldClassStep.h"

// 203 to 1338: adds type "VISCOUS", the only kind a 203 file could hold.
void* kmaC_EosShear_Upgrade_203_1338(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
class kmaC_EosShear_203 : public kmaC_OldClassConversion<kmaC_EosShear, 203, 1338, &kmaC_EosShear_Upgrade_203_1338> {};
// 1338 to 2002: the fields are unchanged.
class kmaC_EosShear_1338 : public kmaC_OldClassStep<kmaC_EosShear, 1338, 2002> {};
