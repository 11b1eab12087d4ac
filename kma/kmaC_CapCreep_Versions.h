#pragma once
// The retired layouts of kmaC_CapCreep: 203.
#include "kma/kmaC_CapCreep.h"
#include "kma/kmaC_OldClassStep.h"

// 203 to 452: the fields are unchanged.
class kmaC_CapCreep_203 : public kmaC_OldClassStep<kmaC_CapCreep, 203, 452> {};
