#pragma once
// The retired layouts of kmaC_Creep: 203.
#include "kma/kmaC_Creep.h"
#include "kma/kmaC_OldClassStep.h"

// 203 to 2008: adds time "TOTAL".
void* Upgrade_kmaC_Creep_203_2008(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
class kmaC_Creep_203 : public kmaC_OldClassConversion<kmaC_Creep, 203, 2008, &Upgrade_kmaC_Creep_203_2008> {};
