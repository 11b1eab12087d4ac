#pragma once
// The retired layouts of kmaC_Hyperelastic: 203, 324, 328, 850, 864.
#include "kma/kmaC_Hyperelastic.h"
#include "kma/kmaC_OldClassStep.h"

// 203 to 324: adds testData false.
void* kmaC_Hyperelastic_Upgrade_203_324(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
class kmaC_Hyperelastic_203 : public kmaC_OldClassConversion<kmaC_Hyperelastic, 203, 324, &kmaC_Hyperelastic_Upgrade_203_324> {};
// 324 to 328: adds n 1.
void* kmaC_Hyperelastic_Upgrade_324_328(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
class kmaC_Hyperelastic_324 : public kmaC_OldClassConversion<kmaC_Hyperelastic, 324, 328, &kmaC_Hyperelastic_Upgrade_324_328> {};
// 328 to 850: adds moduliTimeScale "LONG_TERM".
void* kmaC_Hyperelastic_Upgrade_328_850(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
class kmaC_Hyperelastic_328 : public kmaC_OldClassConversion<kmaC_Hyperelastic, 328, 850, &kmaC_Hyperelastic_Upgrade_328_850> {};
// 850 to 864: adds materialType "ISOTROPIC".
void* kmaC_Hyperelastic_Upgrade_850_864(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
class kmaC_Hyperelastic_850 : public kmaC_OldClassConversion<kmaC_Hyperelastic, 850, 864, &kmaC_Hyperelastic_Upgrade_850_864> {};
// 864 to 2002: adds poissonRatio 0.0, behaviorType "INCOMPRESSIBLE" and the four empty test-data lists.
void* kmaC_Hyperelastic_Upgrade_864_2002(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
class kmaC_Hyperelastic_864 : public kmaC_OldClassConversion<kmaC_Hyperelastic, 864, 2002, &kmaC_Hyperelastic_Upgrade_864_2002> {};
