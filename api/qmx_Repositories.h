#pragma once
/// \file
/// Typed access to the repositories of a model, one pair of functions per repository: the const
/// one reads, the other separates the repository from every copy of the model first (copy on
/// write) and returns it for changes. No cast is needed: each function checks that the model
/// holds the repository under its scripting name with the class the module registered.
#include "kad/kadC_AdptMeshCtrlCont.h"
#include "kad/kadC_AdptMeshDomCont.h"
#include "kam/kamC_AmplitudeContainer.h"
#include "kar/karC_RemeshingRuleCont.h"
#include "kbe/kbeC_ConnectorSectionContainer.h"
#include "kbp/kbpC_BeamProfileContainer.h"
#include "kco/kcoC_ConstraintContainer.h"
#include "kef/kefC_EngineeringFeatures.h"
#include "kfd/kfdC_AnalyticalFieldContainer.h"
#include "kfd/kfdC_DiscreteFieldContainer.h"
#include "kfl/kflC_FilterContainer.h"
#include "klc/klcC_LoadCaseContainer.h"
#include "kma/kmaC_FieldConstituentContainer.h"
#include "kma/kmaC_MaterialContainer.h"
#include "kop/kopC_TaskContainer.h"
#include "ktb/ktbC_ElemProgActivationCont.h"
#include "ktb/ktbC_EventSeriesCont.h"
#include "ktb/ktbC_EventSeriesTypeCont.h"
#include "ktb/ktbC_TableCollContainer.h"
#include "platform/model/ddr_Model.h"

/// The front door of the library for hosts: start and stop (qmx::Library), typed repositories.
///
/// Each repository function throws nex_CmdException with "The model has no repository
/// "NAME"" when the model lacks the repository (its module was not started when the model was
/// made), and with "The model's "NAME" is not a CLASS" when another class was registered under
/// that name. Elements are reached by key: `Materials(model).Get("Steel")`.
namespace qmx {

/// The materials ("materials").
kmaC_MaterialContainer& Materials(ddr_Model& model);
/// The materials ("materials"), for reading.
const kmaC_MaterialContainer& Materials(const ddr_Model& model);
/// The constituents of mean-field homogenization ("fieldConstituents").
kmaC_FieldConstituentContainer& FieldConstituents(ddr_Model& model);
/// The constituents of mean-field homogenization ("fieldConstituents"), for reading.
const kmaC_FieldConstituentContainer& FieldConstituents(const ddr_Model& model);
/// The amplitudes ("amplitudes").
kamC_AmplitudeContainer& Amplitudes(ddr_Model& model);
/// The amplitudes ("amplitudes"), for reading.
const kamC_AmplitudeContainer& Amplitudes(const ddr_Model& model);
/// The connector sections with their behaviours ("connectorSections").
kbeC_ConnectorSectionContainer& ConnectorSections(ddr_Model& model);
/// The connector sections with their behaviours ("connectorSections"), for reading.
const kbeC_ConnectorSectionContainer& ConnectorSections(const ddr_Model& model);
/// The beam profiles ("profiles").
kbpC_BeamProfileContainer& Profiles(ddr_Model& model);
/// The beam profiles ("profiles"), for reading.
const kbpC_BeamProfileContainer& Profiles(const ddr_Model& model);
/// The constraints ("constraints").
kcoC_ConstraintContainer& Constraints(ddr_Model& model);
/// The constraints ("constraints"), for reading.
const kcoC_ConstraintContainer& Constraints(const ddr_Model& model);
/// The engineering features ("engineeringFeatures"): one object owning five repositories.
kefC_EngineeringFeatures& EngineeringFeatures(ddr_Model& model);
/// The engineering features ("engineeringFeatures"), for reading.
const kefC_EngineeringFeatures& EngineeringFeatures(const ddr_Model& model);
/// The analytical fields ("analyticalFields").
kfdC_AnalyticalFieldContainer::Map& AnalyticalFields(ddr_Model& model);
/// The analytical fields ("analyticalFields"), for reading.
const kfdC_AnalyticalFieldContainer::Map& AnalyticalFields(const ddr_Model& model);
/// The discrete fields ("discreteFields").
kfdC_DiscreteFieldContainer::Map& DiscreteFields(ddr_Model& model);
/// The discrete fields ("discreteFields"), for reading.
const kfdC_DiscreteFieldContainer::Map& DiscreteFields(const ddr_Model& model);
/// The signal filters ("filters").
kflC_FilterContainer& Filters(ddr_Model& model);
/// The signal filters ("filters"), for reading.
const kflC_FilterContainer& Filters(const ddr_Model& model);
/// The load cases ("loadCases").
klcC_LoadCaseContainer& LoadCases(ddr_Model& model);
/// The load cases ("loadCases"), for reading.
const klcC_LoadCaseContainer& LoadCases(const ddr_Model& model);
/// The optimization tasks ("optimizationTasks").
kopC_TaskContainer& OptimizationTasks(ddr_Model& model);
/// The optimization tasks ("optimizationTasks"), for reading.
const kopC_TaskContainer& OptimizationTasks(const ddr_Model& model);
/// The table collections ("tableCollections").
ktbC_TableCollContainer& TableCollections(ddr_Model& model);
/// The table collections ("tableCollections"), for reading.
const ktbC_TableCollContainer& TableCollections(const ddr_Model& model);
/// The event series types ("eventSeriesTypes").
ktbC_EventSeriesTypeCont& EventSeriesTypes(ddr_Model& model);
/// The event series types ("eventSeriesTypes"), for reading.
const ktbC_EventSeriesTypeCont& EventSeriesTypes(const ddr_Model& model);
/// The event series ("eventSeriesDatas").
ktbC_EventSeriesCont& EventSeriesDatas(ddr_Model& model);
/// The event series ("eventSeriesDatas"), for reading.
const ktbC_EventSeriesCont& EventSeriesDatas(const ddr_Model& model);
/// The progressive element activations ("elementProgressiveActivations").
ktbC_ElemProgActivationCont& ElementProgressiveActivations(ddr_Model& model);
/// The progressive element activations ("elementProgressiveActivations"), for reading.
const ktbC_ElemProgActivationCont& ElementProgressiveActivations(const ddr_Model& model);
/// The adaptive mesh controls ("adaptiveMeshControls").
kadC_AdptMeshCtrlCont& AdaptiveMeshControls(ddr_Model& model);
/// The adaptive mesh controls ("adaptiveMeshControls"), for reading.
const kadC_AdptMeshCtrlCont& AdaptiveMeshControls(const ddr_Model& model);
/// The adaptive mesh domains ("adaptiveMeshDomains").
kadC_AdptMeshDomCont& AdaptiveMeshDomains(ddr_Model& model);
/// The adaptive mesh domains ("adaptiveMeshDomains"), for reading.
const kadC_AdptMeshDomCont& AdaptiveMeshDomains(const ddr_Model& model);
/// The remeshing rules ("remeshingRules").
karC_RemeshingRuleCont& RemeshingRules(ddr_Model& model);
/// The remeshing rules ("remeshingRules"), for reading.
const karC_RemeshingRuleCont& RemeshingRules(const ddr_Model& model);

}  // namespace qmx
