#pragma once
/// \file
/// Constraints: ties, couplings, MPCs, rigid bodies, equations and the rest.
/// Every class of the module that a host builds, reads or changes; reach the module's
/// repositories through qmx_Repositories.h.
#include "kco/kcoC_AdjustPoints.h"
#include "kco/kcoC_Constraint.h"
#include "kco/kcoC_ConstraintContainer.h"
#include "kco/kcoC_Coupling.h"
#include "kco/kcoC_DdbDisplayBody.h"
#include "kco/kcoC_DisplayBody.h"
#include "kco/kcoC_EmbeddedRegion.h"
#include "kco/kcoC_Enums.h"
#include "kco/kcoC_Equation.h"
#include "kco/kcoC_EquationTerm.h"
#include "kco/kcoC_MPC.h"
#include "kco/kcoC_RigidBody.h"
#include "kco/kcoC_ShellSolidCoupling.h"
#include "kco/kcoC_Tie.h"
