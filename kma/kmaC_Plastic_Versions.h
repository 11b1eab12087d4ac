#pragma once
// The retired layouts of the plastic option (203, 419, 1107, 2002, 2008) and their converters.
#include "kma/kmaC_OldClassStep.h"
#include "kma/kmaC_Plastic.h"

// 203 to 419: the user hardening's number of properties arrives, 0.
void* Upgrade_kmaC_Plastic_203_419(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
// 419 to 1107: the combined-hardening members arrive: "HALF_CYCLE" data, no strain-range
// dependency, one backstress.
void* Upgrade_kmaC_Plastic_419_1107(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
// 2002 to 2008: no stress scale set (the largest finite double) and no static recovery.
void* Upgrade_kmaC_Plastic_2002_2008(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
// 2008 to 2217: extrapolation "CONSTANT".
void* Upgrade_kmaC_Plastic_2008_2217(const dbc_Row& oldRow, dbc_Row& newRow, int arg);

class kmaC_Plastic_203 : public kmaC_OldClassConversion<kmaC_Plastic, 203, 419, &Upgrade_kmaC_Plastic_203_419> {};
class kmaC_Plastic_419 : public kmaC_OldClassConversion<kmaC_Plastic, 419, 1107, &Upgrade_kmaC_Plastic_419_1107> {};
// The sub-options changed at 2002; the plastic rows did not.
class kmaC_Plastic_1107 : public kmaC_OldClassStep<kmaC_Plastic, 1107, 2002> {};
class kmaC_Plastic_2002 : public kmaC_OldClassConversion<kmaC_Plastic, 2002, 2008, &Upgrade_kmaC_Plastic_2002_2008> {};
class kmaC_Plastic_2008 : public kmaC_OldClassConversion<kmaC_Plastic, 2008, 2217, &Upgrade_kmaC_Plastic_2008_2217> {};
