#pragma once
// The retired layouts of the test-data classes: 203 of the uniaxial, biaxial and planar data,
// 203 and 324 of the volumetric data.
#include "kma/kmaC_BiaxialTestData.h"
#include "kma/kmaC_OldClassStep.h"
#include "kma/kmaC_PlanarTestData.h"
#include "kma/kmaC_UniaxialTestData.h"
#include "kma/kmaC_VolumetricTestData.h"

// 203 to 850 (uniaxial, biaxial, planar): adds lateralNominalStrain false.
void* kmaC_TestData_Upgrade_203_850(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
class kmaC_UniaxialTestData_203
    : public kmaC_OldClassConversion<kmaC_UniaxialTestData, 203, 850, &kmaC_TestData_Upgrade_203_850> {};
class kmaC_BiaxialTestData_203
    : public kmaC_OldClassConversion<kmaC_BiaxialTestData, 203, 850, &kmaC_TestData_Upgrade_203_850> {};
class kmaC_PlanarTestData_203
    : public kmaC_OldClassConversion<kmaC_PlanarTestData, 203, 850, &kmaC_TestData_Upgrade_203_850> {};
// 203 to 324 (volumetric): adds volumetricResponse "VOLUMETRIC_DATA".
void* kmaC_VolumetricTestData_Upgrade_203_324(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
class kmaC_VolumetricTestData_203
    : public kmaC_OldClassConversion<kmaC_VolumetricTestData, 203, 324, &kmaC_VolumetricTestData_Upgrade_203_324> {};
// 324 to 850 (volumetric): adds poissonRatio 0.0.
void* kmaC_VolumetricTestData_Upgrade_324_850(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
class kmaC_VolumetricTestData_324
    : public kmaC_OldClassConversion<kmaC_VolumetricTestData, 324, 850, &kmaC_VolumetricTestData_Upgrade_324_850> {};
