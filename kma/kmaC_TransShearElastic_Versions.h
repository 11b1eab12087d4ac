#pragma once
// The retired layouts of kmaC_TransShearElastic: 203.
#include "kma/kmaC_TransShearElastic.h"
#include "kma/kmaC_OldClassStep.h"

// 203 to 2002: the fields are unchanged.
class kmaC_TransShearElastic_203 : public kmaC_OldClassStep<kmaC_TransShearElastic, 203, 2002> {};
