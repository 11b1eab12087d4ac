#pragma once
// The retired layouts of kmaC_Expansion: 203, 419.
#include "kma/kmaC_Expansion.h"
#include "kma/kmaC_OldClassStep.h"

// 203 to 419: adds userSubroutine false.
void* kmaC_Expansion_Upgrade_203_419(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
class kmaC_Expansion_203 : public kmaC_OldClassConversion<kmaC_Expansion, 203, 419, &kmaC_Expansion_Upgrade_203_419> {};
// 419 to 2002: adds zero 0.0.
void* kmaC_Expansion_Upgrade_419_2002(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
class kmaC_Expansion_419 : public kmaC_OldClassConversion<kmaC_Expansion, 419, 2002, &kmaC_Expansion_Upgrade_419_2002> {};
