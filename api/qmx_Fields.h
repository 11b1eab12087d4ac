#pragma once
/// \file
/// Analytical, expression, mapped and discrete fields.
/// Every class of the module that a host builds, reads or changes; reach the module's
/// repositories through qmx_Repositories.h.
#include "kfd/kfdC_AllFields.h"
#include "kfd/kfdC_AnalyticalField.h"
#include "kfd/kfdC_AnalyticalFieldContainer.h"
#include "kfd/kfdC_DataTable.h"
#include "kfd/kfdC_DiscreteField.h"
#include "kfd/kfdC_DiscreteFieldContainer.h"
#include "kfd/kfdC_ExpressionField.h"
#include "kfd/kfdC_Field.h"
#include "kfd/kfdC_FieldContainer.h"
#include "kfd/kfdC_FieldVersions.h"
#include "kfd/kfdC_MappedField.h"
#include "kfd/kfdC_OdbMeshRegionData.h"
