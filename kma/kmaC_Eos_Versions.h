#pragma once
// The retired layouts of kmaC_Eos: 203, 850, 1394, 1447, 1449.
#include "kma/kmaC_Eos.h"
#include "kma/kmaC_OldClassStep.h"

// 203 to 850: adds detonationEnergy 0.0.
void* kmaC_Eos_Upgrade_203_850(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
class kmaC_Eos_203 : public kmaC_OldClassConversion<kmaC_Eos, 203, 850, &kmaC_Eos_Upgrade_203_850> {};
// 850 to 1394: the fields are unchanged.
class kmaC_Eos_850 : public kmaC_OldClassStep<kmaC_Eos, 850, 1394> {};
// 1394 to 1447: the fields are unchanged.
class kmaC_Eos_1394 : public kmaC_OldClassStep<kmaC_Eos, 1394, 1447> {};
// 1447 to 1449: the fields are unchanged.
class kmaC_Eos_1447 : public kmaC_OldClassStep<kmaC_Eos, 1447, 1449> {};
// 1449 to 2002: the fields are unchanged.
class kmaC_Eos_1449 : public kmaC_OldClassStep<kmaC_Eos, 1449, 2002> {};
