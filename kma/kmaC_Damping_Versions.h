#pragma once
// The retired layouts of kmaC_Damping: 203.
#include "kma/kmaC_Damping.h"
#include "kma/kmaC_OldClassStep.h"

// 203 to 2002: adds structural 0.0.
void* kmaC_Damping_Upgrade_203_2002(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
class kmaC_Damping_203 : public kmaC_OldClassConversion<kmaC_Damping, 203, 2002, &kmaC_Damping_Upgrade_203_2002> {};
