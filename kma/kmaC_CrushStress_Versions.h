#pragma once
// The retired layout of kmaC_CrushStress: 2210.
#include "kma/kmaC_CrushStress.h"
#include "kma/kmaC_OldClassStep.h"

// 2210 to 2218: adds crushStressVelocityFactor, empty.
void* Upgrade_kmaC_CrushStress_2210_2218(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
class kmaC_CrushStress_2210
    : public kmaC_OldClassConversion<kmaC_CrushStress, 2210, 2218, &Upgrade_kmaC_CrushStress_2210_2218> {};
