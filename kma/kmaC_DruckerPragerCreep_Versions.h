#pragma once
// The retired layouts of kmaC_DruckerPragerCreep: 203.
#include "kma/kmaC_DruckerPragerCreep.h"
#include "kma/kmaC_OldClassStep.h"

// 203 to 2008: adds time "TOTAL".
void* kmaC_DruckerPragerCreep_Upgrade_203_2008(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
class kmaC_DruckerPragerCreep_203
    : public kmaC_OldClassConversion<kmaC_DruckerPragerCreep, 203, 2008, &kmaC_DruckerPragerCreep_Upgrade_203_2008> {};
