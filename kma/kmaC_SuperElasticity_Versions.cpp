#include "kma/kmaC_SuperElasticity_Versions.h"
