#pragma once
// The retired layouts of kmaC_ThicknessBehavior: 203.
#include "kma/kmaC_ThicknessBehavior.h"
#include "kma/kmaC_OldClassStep.h"

// 203 to 2002: adds tensileStiffnessFactor 0.001.
void* kmaC_ThicknessBehavior_Upgrade_203_2002(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
class kmaC_ThicknessBehavior_203 : public kmaC_OldClassConversion<kmaC_ThicknessBehavior, 203, 2002, &kmaC_ThicknessBehavior_Upgrade_203_2002> {};
