#pragma once
// The retired layouts of kmaC_Regularization: 203.
#include "kma/kmaC_Regularization.h"
#include "kma/kmaC_OldClassStep.h"

// 203 to 2002: the fields are unchanged.
class kmaC_Regularization_203 : public kmaC_OldClassStep<kmaC_Regularization, 203, 2002> {};
