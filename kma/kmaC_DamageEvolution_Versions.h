#pragma once
// The retired layouts of kmaC_DamageEvolution: 869, 883.
#include "kma/kmaC_DamageEvolution.h"
#include "kma/kmaC_OldClassStep.h"

// 869 to 883: adds modeMixRatio "ENERGY" and degradation "MAXIMUM".
void* kmaC_DamageEvolution_Upgrade_869_883(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
class kmaC_DamageEvolution_869
    : public kmaC_OldClassConversion<kmaC_DamageEvolution, 869, 883, &kmaC_DamageEvolution_Upgrade_869_883> {};
// 883 to 2305: adds failureIndex 1 (an evolution stored before belongs to the only failure mode).
void* Upgrade_kmaC_DamageEvolution_883_2305(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
class kmaC_DamageEvolution_883
    : public kmaC_OldClassConversion<kmaC_DamageEvolution, 883, 2305, &Upgrade_kmaC_DamageEvolution_883_2305> {};
