#pragma once
/// \file
/// Signal filters of output.
/// Every class of the module that a host builds, reads or changes; reach the module's
/// repositories through qmx_Repositories.h.
#include "kfl/kflC_ButterworthFilter.h"
#include "kfl/kflC_Chebyshev1Filter.h"
#include "kfl/kflC_Chebyshev2Filter.h"
#include "kfl/kflC_Filter.h"
#include "kfl/kflC_FilterContainer.h"
#include "kfl/kflC_OperatorFilter.h"
