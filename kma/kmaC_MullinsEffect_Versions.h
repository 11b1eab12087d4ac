#pragma once
// The retired layout of kmaC_MullinsEffect: 850.
#include "kma/kmaC_MullinsEffect.h"
#include "kma/kmaC_OldClassStep.h"

// 850 to 1106: adds the empty lists uniaxialTests, biaxialTests and planarTests.
void* kmaC_MullinsEffect_Upgrade_850_1106(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
class kmaC_MullinsEffect_850
    : public kmaC_OldClassConversion<kmaC_MullinsEffect, 850, 1106, &kmaC_MullinsEffect_Upgrade_850_1106> {};
