#pragma once
// The retired layouts of kmaC_MohrCoulomb: 205, 404, 1422.
#include "kma/kmaC_MohrCoulomb.h"
#include "kma/kmaC_OldClassStep.h"

// 205 to 404: adds meridionalEccentricity 0.1.
void* kmaC_MohrCoulomb_Upgrade_205_404(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
class kmaC_MohrCoulomb_205 : public kmaC_OldClassConversion<kmaC_MohrCoulomb, 205, 404, &kmaC_MohrCoulomb_Upgrade_205_404> {};
// 404 to 1422: adds deviatoricEccentricity 1.0.
void* kmaC_MohrCoulomb_Upgrade_404_1422(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
class kmaC_MohrCoulomb_404 : public kmaC_OldClassConversion<kmaC_MohrCoulomb, 404, 1422, &kmaC_MohrCoulomb_Upgrade_404_1422> {};
// 1422 to 2002: adds useTensionCutoff false.
void* kmaC_MohrCoulomb_Upgrade_1422_2002(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
class kmaC_MohrCoulomb_1422 : public kmaC_OldClassConversion<kmaC_MohrCoulomb, 1422, 2002, &kmaC_MohrCoulomb_Upgrade_1422_2002> {};
