#pragma once
// The retired layouts of kmaC_Piezoelectric: 203.
#include "kma/kmaC_Piezoelectric.h"
#include "kma/kmaC_OldClassStep.h"

// 203 to 2002: the fields are unchanged.
class kmaC_Piezoelectric_203 : public kmaC_OldClassStep<kmaC_Piezoelectric, 203, 2002> {};
