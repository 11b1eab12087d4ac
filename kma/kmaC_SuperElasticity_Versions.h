#pragma once
// The retired layouts of kmaC_SuperElasticity: 1857.
#include "kma/kmaC_SuperElasticity.h"
#include "kma/kmaC_OldClassStep.h"

// 1857 to 2002: the fields are unchanged.
class kmaC_SuperElasticity_1857 : public kmaC_OldClassStep<kmaC_SuperElasticity, 1857, 2002> {};
