#pragma once
// The retired layouts of kmaC_Viscoelastic: 203, 855.
#include "kma/kmaC_Viscoelastic.h"
#include "kma/kmaC_OldClassStep.h"

// 203 to 855: adds preload "NONE".
void* kmaC_Viscoelastic_Upgrade_203_855(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
class kmaC_Viscoelastic_203 : public kmaC_OldClassConversion<kmaC_Viscoelastic, 203, 855, &kmaC_Viscoelastic_Upgrade_203_855> {};
// 855 to 2002: adds type "ISOTROPIC".
void* kmaC_Viscoelastic_Upgrade_855_2002(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
class kmaC_Viscoelastic_855 : public kmaC_OldClassConversion<kmaC_Viscoelastic, 855, 2002, &kmaC_Viscoelastic_Upgrade_855_2002> {};
