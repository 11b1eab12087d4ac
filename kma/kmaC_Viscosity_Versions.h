#pragma once
// The retired layouts of kmaC_Viscosity: 1411.
#include "kma/kmaC_Viscosity.h"
#include "kma/kmaC_OldClassStep.h"

// 1411 to 2002: the fields are unchanged.
class kmaC_Viscosity_1411 : public kmaC_OldClassStep<kmaC_Viscosity, 1411, 2002> {};
