#pragma once
/// \file
/// Beam profiles.
/// Every class of the module that a host builds, reads or changes; reach the module's
/// repositories through qmx_Repositories.h.
#include "kbp/kbpC_ArbitraryProfile.h"
#include "kbp/kbpC_BeamProfile.h"
#include "kbp/kbpC_BeamProfileContainer.h"
#include "kbp/kbpC_BoxProfile.h"
#include "kbp/kbpC_CbeamProfile.h"
#include "kbp/kbpC_CircularProfile.h"
#include "kbp/kbpC_GeneralizedProfile.h"
#include "kbp/kbpC_HatProfile.h"
#include "kbp/kbpC_HexagonalProfile.h"
#include "kbp/kbpC_IbeamProfile.h"
#include "kbp/kbpC_LbeamProfile.h"
#include "kbp/kbpC_PipeProfile.h"
#include "kbp/kbpC_ProfileLabels.h"
#include "kbp/kbpC_RectangularProfile.h"
#include "kbp/kbpC_TbeamProfile.h"
#include "kbp/kbpC_TrapezoidalProfile.h"
