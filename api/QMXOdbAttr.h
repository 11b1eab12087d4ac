#pragma once
/// \file
/// Everything a host needs, in one include: starting the library, the database and its file,
/// typed access to every repository of a model, every class of every module, and the command
/// layer. Include the qmx_*.h headers one by one to pull in less.
#include "api/qmx_AdaptiveMeshing.h"
#include "api/qmx_Amplitudes.h"
#include "api/qmx_Commands.h"
#include "api/qmx_ConnectorBehaviors.h"
#include "api/qmx_Constraints.h"
#include "api/qmx_Elements.h"
#include "api/qmx_EngineeringFeatures.h"
#include "api/qmx_Fields.h"
#include "api/qmx_Files.h"
#include "api/qmx_Filters.h"
#include "api/qmx_Library.h"
#include "api/qmx_LoadCases.h"
#include "api/qmx_Materials.h"
#include "api/qmx_Optimization.h"
#include "api/qmx_Profiles.h"
#include "api/qmx_Repositories.h"
#include "api/qmx_Tables.h"
