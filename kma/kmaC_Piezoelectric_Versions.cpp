#include "kma/kmaC_Piezoelectric_Versions.h"
