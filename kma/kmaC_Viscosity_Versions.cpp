#include "kma/kmaC_Viscosity_Versions.h"
