#include "kma/kmaC_Regularization_Versions.h"
