#pragma once
// The retired layouts of kmaC_DamageInitiation: 869, 883, 1352, 1390, 1432, 1801.
#include "kma/kmaC_DamageInitiation.h"
#include "kma/kmaC_OldClassStep.h"

// 869 to 883: adds omega 1.0.
void* Upgrade_kmaC_DamageInitiation_869_883(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
class kmaC_DamageInitiation_869 : public kmaC_OldClassConversion<kmaC_DamageInitiation, 869, 883, &Upgrade_kmaC_DamageInitiation_869_883> {};
// 883 to 1352: adds tolerance 0.05, numberImperfections 4.
void* Upgrade_kmaC_DamageInitiation_883_1352(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
class kmaC_DamageInitiation_883 : public kmaC_OldClassConversion<kmaC_DamageInitiation, 883, 1352, &Upgrade_kmaC_DamageInitiation_883_1352> {};
// 1352 to 1390: the fields are unchanged.
class kmaC_DamageInitiation_1352 : public kmaC_OldClassStep<kmaC_DamageInitiation, 1352, 1390> {};
// 1390 to 1432: adds direction "NMORI".
void* Upgrade_kmaC_DamageInitiation_1390_1432(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
class kmaC_DamageInitiation_1390 : public kmaC_OldClassConversion<kmaC_DamageInitiation, 1390, 1432, &Upgrade_kmaC_DamageInitiation_1390_1432> {};
// 1432 to 1801: adds position "CENTROID".
void* Upgrade_kmaC_DamageInitiation_1432_1801(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
class kmaC_DamageInitiation_1432 : public kmaC_OldClassConversion<kmaC_DamageInitiation, 1432, 1801, &Upgrade_kmaC_DamageInitiation_1432_1801> {};
// 1801 to 2305: adds feq 10.0, fnn 10.0, fnt 10.0, frequency 1 and an empty DamageEvolutionList.
void* Upgrade_kmaC_DamageInitiation_1801_2305(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
class kmaC_DamageInitiation_1801 : public kmaC_OldClassConversion<kmaC_DamageInitiation, 1801, 2305, &Upgrade_kmaC_DamageInitiation_1801_2305> {};
