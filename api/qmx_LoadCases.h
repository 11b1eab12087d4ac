#pragma once
/// \file
/// Load cases.
/// Every class of the module that a host builds, reads or changes; reach the module's
/// repositories through qmx_Repositories.h.
#include "klc/klcC_LoadCase.h"
#include "klc/klcC_LoadCaseContainer.h"
#include "klc/klcC_LoadCaseTerm.h"
