#pragma once
// The retired layouts of kmaC_UserMaterial: 203, 419, 451.
#include "kma/kmaC_UserMaterial.h"
#include "kma/kmaC_OldClassStep.h"

// 203 to 419: adds unsymm false.
void* kmaC_UserMaterial_Upgrade_203_419(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
class kmaC_UserMaterial_203 : public kmaC_OldClassConversion<kmaC_UserMaterial, 203, 419, &kmaC_UserMaterial_Upgrade_203_419> {};
// 419 to 451: adds effmod false.
void* kmaC_UserMaterial_Upgrade_419_451(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
class kmaC_UserMaterial_419 : public kmaC_OldClassConversion<kmaC_UserMaterial, 419, 451, &kmaC_UserMaterial_Upgrade_419_451> {};
// 451 to 2002: adds hybridFormulation "INCOMPRESSIBLE".
void* kmaC_UserMaterial_Upgrade_451_2002(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
class kmaC_UserMaterial_451 : public kmaC_OldClassConversion<kmaC_UserMaterial, 451, 2002, &kmaC_UserMaterial_Upgrade_451_2002> {};
