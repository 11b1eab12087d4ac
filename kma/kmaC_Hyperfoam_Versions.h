#pragma once
// The retired layouts of kmaC_Hyperfoam: 203, 850.
#include "kma/kmaC_Hyperfoam.h"
#include "kma/kmaC_OldClassStep.h"

// 203 to 850: adds moduli "LONG_TERM".
void* kmaC_Hyperfoam_Upgrade_203_850(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
class kmaC_Hyperfoam_203 : public kmaC_OldClassConversion<kmaC_Hyperfoam, 203, 850, &kmaC_Hyperfoam_Upgrade_203_850> {};
// 850 to 2002: the fields are unchanged.
class kmaC_Hyperfoam_850 : public kmaC_OldClassStep<kmaC_Hyperfoam, 850, 2002> {};
