#pragma once
/// \file
/// Adaptive meshing: the adaptive mesh controls and domains (kad) and the remeshing rules (kar).
/// Every class of the module that a host builds, reads or changes; reach the module's
/// repositories through qmx_Repositories.h.
#include "kad/kadC_AdptMeshCtrl.h"
#include "kad/kadC_AdptMeshCtrlCont.h"
#include "kad/kadC_AdptMeshDomCont.h"
#include "kad/kadC_AdptMeshDomain.h"
#include "kar/karC_RemeshingRule.h"
#include "kar/karC_RemeshingRuleCont.h"
