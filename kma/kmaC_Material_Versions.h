#pragma once
// The retired layouts of the material. Each step carries rows to the next version the material
// changed at; where the newer layout added slots or strings, its function fills them as empty
// (a null option, an empty string), which is what a material that never had them holds.
#include "kma/kmaC_Material.h"
#include "kma/kmaC_OldClassStep.h"

void* kmaC_Material_AddDescription(const dbc_Row& oldRow, dbc_Row& newRow, int arg);                // 1436 -> 1449
void* kmaC_Material_AddMaterialIdentifier(const dbc_Row& oldRow, dbc_Row& newRow, int arg);         // 1449 -> 1628
void* kmaC_Material_AddSoftRockPlasticity(const dbc_Row& oldRow, dbc_Row& newRow, int arg);         // 1628 -> 1853
void* kmaC_Material_AddSuperElasticity(const dbc_Row& oldRow, dbc_Row& newRow, int arg);            // 1853 -> 1857
void* kmaC_Material_AddMeanFieldHomogenization(const dbc_Row& oldRow, dbc_Row& newRow, int arg);    // 1857 -> 1901
void* kmaC_Material_AddCrushStress(const dbc_Row& oldRow, dbc_Row& newRow, int arg);                // 2102 -> 2210
void* kmaC_Material_AddPlasticityCorrection(const dbc_Row& oldRow, dbc_Row& newRow, int arg);       // 2210 -> 2218
void* kmaC_Material_AddLaRC05DamageInitiation(const dbc_Row& oldRow, dbc_Row& newRow, int arg);     // 2218 -> 2300
void* kmaC_Material_AddHosfordCoulombInitiation(const dbc_Row& oldRow, dbc_Row& newRow, int arg);   // 2300 -> 2305
void* kmaC_Material_AddElectrochemistry(const dbc_Row& oldRow, dbc_Row& newRow, int arg);           // 2305 -> 2503

// Steps that only raise the version: an option class changed, the material's own rows did not.
class kmaC_Material_203 : public kmaC_OldClassStep<kmaC_Material, 203, 212> {};
class kmaC_Material_212 : public kmaC_OldClassStep<kmaC_Material, 212, 301> {};
class kmaC_Material_301 : public kmaC_OldClassStep<kmaC_Material, 301, 849> {};
class kmaC_Material_849 : public kmaC_OldClassStep<kmaC_Material, 849, 850> {};
class kmaC_Material_850 : public kmaC_OldClassStep<kmaC_Material, 850, 869> {};
class kmaC_Material_869 : public kmaC_OldClassStep<kmaC_Material, 869, 1053> {};
class kmaC_Material_1053 : public kmaC_OldClassStep<kmaC_Material, 1053, 1106> {};
class kmaC_Material_1106 : public kmaC_OldClassStep<kmaC_Material, 1106, 1352> {};
class kmaC_Material_1352 : public kmaC_OldClassStep<kmaC_Material, 1352, 1400> {};
class kmaC_Material_1400 : public kmaC_OldClassStep<kmaC_Material, 1400, 1411> {};
class kmaC_Material_1411 : public kmaC_OldClassStep<kmaC_Material, 1411, 1436> {};
class kmaC_Material_1436 : public kmaC_OldClassConversion<kmaC_Material, 1436, 1449, &kmaC_Material_AddDescription> {};
class kmaC_Material_1449 : public kmaC_OldClassConversion<kmaC_Material, 1449, 1628, &kmaC_Material_AddMaterialIdentifier> {};
class kmaC_Material_1628 : public kmaC_OldClassConversion<kmaC_Material, 1628, 1853, &kmaC_Material_AddSoftRockPlasticity> {};
class kmaC_Material_1853 : public kmaC_OldClassConversion<kmaC_Material, 1853, 1857, &kmaC_Material_AddSuperElasticity> {};
class kmaC_Material_1857
    : public kmaC_OldClassConversion<kmaC_Material, 1857, 1901, &kmaC_Material_AddMeanFieldHomogenization> {};
class kmaC_Material_1901 : public kmaC_OldClassStep<kmaC_Material, 1901, 2102> {};
class kmaC_Material_2102 : public kmaC_OldClassConversion<kmaC_Material, 2102, 2210, &kmaC_Material_AddCrushStress> {};
class kmaC_Material_2210 : public kmaC_OldClassConversion<kmaC_Material, 2210, 2218, &kmaC_Material_AddPlasticityCorrection> {};
class kmaC_Material_2218 : public kmaC_OldClassConversion<kmaC_Material, 2218, 2300, &kmaC_Material_AddLaRC05DamageInitiation> {};
class kmaC_Material_2300
    : public kmaC_OldClassConversion<kmaC_Material, 2300, 2305, &kmaC_Material_AddHosfordCoulombInitiation> {};
class kmaC_Material_2305 : public kmaC_OldClassConversion<kmaC_Material, 2305, 2503, &kmaC_Material_AddElectrochemistry> {};
