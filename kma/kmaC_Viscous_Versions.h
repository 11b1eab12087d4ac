#pragma once
// The retired layouts of kmaC_Viscous: 203, 438.
#include "kma/kmaC_Viscous.h"
#include "kma/kmaC_OldClassStep.h"

// 203 to 438: the fields are unchanged.
class kmaC_Viscous_203 : public kmaC_OldClassStep<kmaC_Viscous, 203, 438> {};
// 438 to 2008: adds law "STRAIN".
void* Upgrade_kmaC_Viscous_438_2008(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
class kmaC_Viscous_438 : public kmaC_OldClassConversion<kmaC_Viscous, 438, 2008, &Upgrade_kmaC_Viscous_438_2008> {};
