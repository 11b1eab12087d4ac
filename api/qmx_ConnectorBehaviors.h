#pragma once
/// \file
/// Connector sections and their behaviours: elasticity, damping, plasticity, friction, damage, failure, lock, stop.
/// Every class of the module that a host builds, reads or changes; reach the module's
/// repositories through qmx_Repositories.h.
#include "kbe/kbeC_BehaviorOptionContainer.h"
#include "kbe/kbeC_CDCTerm.h"
#include "kbe/kbeC_Checks.h"
#include "kbe/kbeC_ConnectorBehaviorOption.h"
#include "kbe/kbeC_ConnectorDamage.h"
#include "kbe/kbeC_ConnectorDamping.h"
#include "kbe/kbeC_ConnectorElasticity.h"
#include "kbe/kbeC_ConnectorFailure.h"
#include "kbe/kbeC_ConnectorFriction.h"
#include "kbe/kbeC_ConnectorLock.h"
#include "kbe/kbeC_ConnectorOptions.h"
#include "kbe/kbeC_ConnectorPlasticity.h"
#include "kbe/kbeC_ConnectorPotential.h"
#include "kbe/kbeC_ConnectorSection.h"
#include "kbe/kbeC_ConnectorSectionContainer.h"
#include "kbe/kbeC_ConnectorStop.h"
#include "kbe/kbeC_ContactForce.h"
#include "kbe/kbeC_DerivedComponent.h"
#include "kbe/kbeC_Legacy.h"
#include "kbe/kbeC_PotentialIds.h"
#include "kbe/kbeC_Rename.h"
#include "kbe/kbeC_TangentialBehavior.h"
#include "kbe/kbeC_Values.h"
