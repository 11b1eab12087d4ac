#pragma once
// The retired layouts of kmaC_ClayPlasticity: 203.
#include "kma/kmaC_ClayPlasticity.h"
#include "kma/kmaC_OldClassStep.h"

// 203 to 2002: adds hardening "EXPONENTIAL".
void* kmaC_ClayPlasticity_Upgrade_203_2002(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
class kmaC_ClayPlasticity_203 : public kmaC_OldClassConversion<kmaC_ClayPlasticity, 203, 2002, &kmaC_ClayPlasticity_Upgrade_203_2002> {};
