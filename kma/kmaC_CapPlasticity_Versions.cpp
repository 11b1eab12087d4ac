#include "kma/kmaC_CapPlasticity_Versions.h"
