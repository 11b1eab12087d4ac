#pragma once
// The retired layouts of kmaC_ElectricalConductivity: 203.
#include "kma/kmaC_ElectricalConductivity.h"
#include "kma/kmaC_OldClassStep.h"

// 203 to 2002: adds frequencyDependency false.
void* kmaC_ElectricalConductivity_Upgrade_203_2002(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
class kmaC_ElectricalConductivity_203 : public kmaC_OldClassConversion<kmaC_ElectricalConductivity, 203, 2002, &kmaC_ElectricalConductivity_Upgrade_203_2002> {};
