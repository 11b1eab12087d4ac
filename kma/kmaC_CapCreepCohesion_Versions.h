#pragma once
// The retired layouts of kmaC_CapCreepCohesion: 452.
#include "kma/kmaC_CapCreepCohesion.h"
#include "kma/kmaC_OldClassStep.h"

// 452 to 2008: adds time "TOTAL" (the data of a 452 file are total-time data).
void* Upgrade_kmaC_CapCreepCohesion_452_2008(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
class kmaC_CapCreepCohesion_452
    : public kmaC_OldClassConversion<kmaC_CapCreepCohesion, 452, 2008, &Upgrade_kmaC_CapCreepCohesion_452_2008> {};
