#include "kma/kmaC_TransShearElastic_Versions.h"
