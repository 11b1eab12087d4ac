#pragma once
// The retired layouts of kmaC_CapPlasticity: 203, 452.
#include "kma/kmaC_CapPlasticity.h"
#include "kma/kmaC_OldClassStep.h"

// 203 to 452: the fields are unchanged.
class kmaC_CapPlasticity_203 : public kmaC_OldClassStep<kmaC_CapPlasticity, 203, 452> {};
// 452 to 2002: the fields are unchanged.
class kmaC_CapPlasticity_452 : public kmaC_OldClassStep<kmaC_CapPlasticity, 452, 2002> {};
