#pragma once
/// \file
/// Table collections, event series and progressive element activation.
/// Every class of the module that a host builds, reads or changes; reach the module's
/// repositories through qmx_Repositories.h.
#include "ktb/ktbC_ActivateElem.h"
#include "ktb/ktbC_CompositeColTable.h"
#include "ktb/ktbC_CompositeColTableCont.h"
#include "ktb/ktbC_DataColumn.h"
#include "ktb/ktbC_DataColumnList.h"
#include "ktb/ktbC_ElemProgActivationCont.h"
#include "ktb/ktbC_ElemProgressiveActivation.h"
#include "ktb/ktbC_EventSeries.h"
#include "ktb/ktbC_EventSeriesCont.h"
#include "ktb/ktbC_EventSeriesType.h"
#include "ktb/ktbC_EventSeriesTypeCont.h"
#include "ktb/ktbC_ParameterColumn.h"
#include "ktb/ktbC_ParameterColumnList.h"
#include "ktb/ktbC_ParameterTable.h"
#include "ktb/ktbC_ParameterTableCont.h"
#include "ktb/ktbC_PropertyTable.h"
#include "ktb/ktbC_PropertyTableCont.h"
#include "ktb/ktbC_PropertyTableData.h"
#include "ktb/ktbC_PropertyTableDataCont.h"
#include "ktb/ktbC_TableCollContainer.h"
#include "ktb/ktbC_TableCollection.h"
#include "ktb/ktbC_Transformation.h"
