#include "ktb/QMXOdbKtbC.h"

#include <iterator>
#include "ktb/ktbC_Advice.h"

#include "ktb/ktbC_ActivateElem.h"
#include "ktb/ktbC_CompositeColTable.h"
#include "ktb/ktbC_CompositeColTableCont.h"
#include "ktb/ktbC_DataColumn.h"
#include "ktb/ktbC_DataColumnList.h"
#include "ktb/ktbC_Descriptions.h"
#include "ktb/ktbC_EPAWrapper.h"
#include "ktb/ktbC_ESTWrapper.h"
#include "ktb/ktbC_ESWrapper.h"
#include "ktb/ktbC_ElemProgressiveActivation.h"
#include "ktb/ktbC_EventSeries.h"
#include "ktb/ktbC_EventSeriesType.h"
#include "ktb/ktbC_ParameterColumn.h"
#include "ktb/ktbC_ParameterColumnList.h"
#include "ktb/ktbC_ParameterTable.h"
#include "ktb/ktbC_ParameterTableCont.h"
#include "ktb/ktbC_PropertyTable.h"
#include "ktb/ktbC_PropertyTableCont.h"
#include "ktb/ktbC_PropertyTableData.h"
#include "ktb/ktbC_PropertyTableDataCont.h"
#include "ktb/ktbC_TCWrapper.h"
#include "ktb/ktbC_TableCollection.h"
#include "ktb/ktbC_Transformation.h"
#include "platform/base/bas_StartCount.h"
#include "platform/base/bas_StartJournal.h"
#include "platform/base/omi_Singleton.h"
#include "platform/model/ddr_Model.h"
#include "platform/persist/cls_ClassRegistrar.h"

namespace {
int count = 0;
constexpr std::uint16_t kArchKey = 772;

// Row i names the class whose type id is (772 << 16) | i: the classes, their containers, the
// model extensions, the shortcut families (element IMPLSC, shortcut and element-in-container
// shortcut; container IMPLSC, shortcut and container-in-owner shortcut), then the event series
// transformation and the two positional column lists.
constexpr typ_ArchCompRecord kArchRows[] = {
    {0, 0, 0, nullptr},
    {7, 1, 0, "ktbC_TableCollection"},
    {7, 1, 0, "ktbC_CompositeColTable"},
    {7, 1, 0, "ktbC_DataColumn"},
    {7, 1, 0, "ktbC_ParameterTable"},
    {7, 1, 0, "ktbC_ParameterColumn"},
    {7, 1, 0, "ktbC_PropertyTable"},
    {7, 1, 0, "ktbC_PropertyTableData"},
    {7, 1, 0, "ktbC_EventSeriesType"},
    {7, 1, 0, "ktbC_EventSeries"},
    {7, 1, 0, "ktbC_ElemProgressiveActivation"},
    {7, 1, 0, "ktbC_ActivateElem"},
    {7, 1, 10, "ktbC_TableCollContainer"},
    {7, 1, 10, "ktbC_CompositeColTableCont"},
    {7, 1, 10, "ktbC_ParameterTableCont"},
    {7, 1, 10, "ktbC_PropertyTableCont"},
    {7, 1, 10, "ktbC_PropertyTableDataCont"},
    {7, 1, 10, "ktbC_EventSeriesTypeCont"},
    {7, 1, 10, "ktbC_EventSeriesCont"},
    {7, 1, 10, "ktbC_ElemProgActivationCont"},
    {7, 13, 10, "ktbC_TCWrapper"},
    {7, 13, 10, "ktbC_ESTWrapper"},
    {7, 13, 10, "ktbC_ESWrapper"},
    {7, 13, 10, "ktbC_EPAWrapper"},
    {7, 1, 0, "ktbC_TableCollectionIMPLSC"},
    {7, 1, 0, "ktbC_TableCollectionShortcut"},
    {7, 24, 772, "ktbC_TableCollectionInTableCollContainerShortcut"},
    {7, 1, 0, "ktbC_TableCollContainerIMPLSC"},
    {7, 1, 0, "ktbC_TableCollContainerShortcut"},
    {7, 27, 772, "ktbC_TableCollContainerInModelShortcut"},
    {7, 1, 0, "ktbC_EventSeriesTypeIMPLSC"},
    {7, 1, 0, "ktbC_EventSeriesTypeShortcut"},
    {7, 30, 772, "ktbC_EventSeriesTypeInEventSeriesTypeContShortcut"},
    {7, 1, 0, "ktbC_EventSeriesTypeContIMPLSC"},
    {7, 1, 0, "ktbC_EventSeriesTypeContShortcut"},
    {7, 33, 772, "ktbC_EventSeriesTypeContInModelShortcut"},
    {7, 1, 0, "ktbC_EventSeriesIMPLSC"},
    {7, 1, 0, "ktbC_EventSeriesShortcut"},
    {7, 36, 772, "ktbC_EventSeriesInEventSeriesContShortcut"},
    {7, 1, 0, "ktbC_EventSeriesContIMPLSC"},
    {7, 1, 0, "ktbC_EventSeriesContShortcut"},
    {7, 39, 772, "ktbC_EventSeriesContInModelShortcut"},
    {7, 1, 0, "ktbC_ElemProgressiveActivationIMPLSC"},
    {7, 1, 0, "ktbC_ElemProgressiveActivationShortcut"},
    {7, 42, 772, "ktbC_ElemProgressiveActivationInElemProgActivationContShortcut"},
    {7, 1, 0, "ktbC_ElemProgActivationContIMPLSC"},
    {7, 1, 0, "ktbC_ElemProgActivationContShortcut"},
    {7, 45, 772, "ktbC_ElemProgActivationContInModelShortcut"},
    {7, 1, 0, "ktbC_ParameterTableIMPLSC"},
    {7, 1, 0, "ktbC_ParameterTableShortcut"},
    {7, 48, 772, "ktbC_ParameterTableInParameterTableContShortcut"},
    {7, 1, 0, "ktbC_ParameterTableContIMPLSC"},
    {7, 1, 0, "ktbC_ParameterTableContShortcut"},
    {7, 51, 772, "ktbC_ParameterTableContInTableCollectionShortcut"},
    {7, 1, 0, "ktbC_PropertyTableIMPLSC"},
    {7, 1, 0, "ktbC_PropertyTableShortcut"},
    {7, 54, 772, "ktbC_PropertyTableInPropertyTableContShortcut"},
    {7, 1, 0, "ktbC_PropertyTableContIMPLSC"},
    {7, 1, 0, "ktbC_PropertyTableContShortcut"},
    {7, 57, 772, "ktbC_PropertyTableContInTableCollectionShortcut"},
    {7, 1, 0, "ktbC_CompositeColTableIMPLSC"},
    {7, 1, 0, "ktbC_CompositeColTableShortcut"},
    {7, 60, 772, "ktbC_CompositeColTableInCompositeColTableContShortcut"},
    {7, 1, 0, "ktbC_CompositeColTableContIMPLSC"},
    {7, 1, 0, "ktbC_CompositeColTableContShortcut"},
    {7, 63, 772, "ktbC_CompositeColTableContInTableCollectionShortcut"},
    {7, 1, 0, "ktbC_PropertyTableDataIMPLSC"},
    {7, 1, 0, "ktbC_PropertyTableDataShortcut"},
    {7, 66, 772, "ktbC_PropertyTableDataInPropertyTableDataContShortcut"},
    {7, 1, 0, "ktbC_PropertyTableDataContIMPLSC"},
    {7, 1, 0, "ktbC_PropertyTableDataContShortcut"},
    {7, 69, 772, "ktbC_PropertyTableDataContInPropertyTableShortcut"},
    {7, 1, 0, "ktbC_Transformation"},
    {7, 1, 10, "ktbC_DataColumnList"},
    {7, 1, 10, "ktbC_ParameterColumnList"},
};
static_assert(std::size(kArchRows) == 75);

template <class Wrapper, class Container>
void RegisterContainer() {
  Container empty;
  Wrapper prototype(empty);
  ddr_Model::RegisterExtension(prototype);
  bas_StartJournal::Register(Wrapper::kClassName);
}
}  // namespace

typ_ArchCompEntry ktbC_ArchEntry() {
  return typ_ArchCompEntry(kArchRows, static_cast<int>(std::size(kArchRows)));
}

void ktbC_formalize() {}

int QMXOdbKtbC_count() { return count; }

void QMXOdbKtbC_initialize(int& tally) {
  if (!bas_FirstStart(count, tally)) return;
  ktbC_RegisterDescriptions();
  ktbC_RegisterAdvice();
  bas_StartJournal::Start("QMXOdbKtbC");
  typ_ArchCompTable::InsertEntry(kArchKey, ktbC_ArchEntry());
  RegisterContainer<ktbC_TCWrapper, ktbC_TableCollContainer>();
  RegisterContainer<ktbC_ESTWrapper, ktbC_EventSeriesTypeCont>();
  RegisterContainer<ktbC_ESWrapper, ktbC_EventSeriesCont>();
  RegisterContainer<ktbC_EPAWrapper, ktbC_ElemProgActivationCont>();

  auto& metadata = omi_Singleton<cls_MetadataRegistrar>::Instance();
  metadata.initClassMetadata(&ktbC_DataColumn::InitializeMetadata, 7);
  metadata.initClassMetadata(&ktbC_DataColumnList::InitializeMetadata, 3);
  metadata.initClassMetadata(&ktbC_CompositeColTable::InitializeMetadata, 7);
  metadata.initClassMetadata(&ktbC_ParameterColumn::InitializeMetadata, 7);
  metadata.initClassMetadata(&ktbC_ParameterColumnList::InitializeMetadata, 3);
  metadata.initClassMetadata(&ktbC_ParameterTable::InitializeMetadata, 7);
  metadata.initClassMetadata(&ktbC_PropertyTableData::InitializeMetadata, 7);
  metadata.initClassMetadata(&ktbC_PropertyTableDataCont::InitializeMetadata, 3);
  metadata.initClassMetadata(&ktbC_PropertyTable::InitializeMetadata, 7);
  metadata.initClassMetadata(&ktbC_ParameterTableCont::InitializeMetadata, 3);
  metadata.initClassMetadata(&ktbC_PropertyTableCont::InitializeMetadata, 3);
  metadata.initClassMetadata(&ktbC_CompositeColTableCont::InitializeMetadata, 3);
  metadata.initClassMetadata(&ktbC_TableCollection::InitializeMetadata, 7);
  metadata.initClassMetadata(&ktbC_TableCollContainer::InitializeMetadata, 3);
  metadata.initClassMetadata(&ktbC_EventSeriesType::InitializeMetadata, 7);
  metadata.initClassMetadata(&ktbC_EventSeriesTypeCont::InitializeMetadata, 3);
  metadata.initClassMetadata(&ktbC_Transformation::InitializeMetadata, 7);
  metadata.initClassMetadata(&ktbC_EventSeries::InitializeMetadata, 7);
  metadata.initClassMetadata(&ktbC_EventSeriesCont::InitializeMetadata, 3);
  metadata.initClassMetadata(&ktbC_ActivateElem::InitializeMetadata, 7);
  metadata.initClassMetadata(&ktbC_ElemProgressiveActivation::InitializeMetadata, 7);
  metadata.initClassMetadata(&ktbC_ElemProgActivationCont::InitializeMetadata, 3);
  metadata.initClassMetadata(&ktbC_TCWrapper::InitializeMetadata, 4);
  metadata.initClassMetadata(&ktbC_ESTWrapper::InitializeMetadata, 4);
  metadata.initClassMetadata(&ktbC_ESWrapper::InitializeMetadata, 4);
  metadata.initClassMetadata(&ktbC_EPAWrapper::InitializeMetadata, 4);
}

void QMXOdbKtbC_finalize(int& tally) {
  if (!bas_LastStop(count, tally)) return;
  ktbC_UnregisterDescriptions();
  ktbC_UnregisterAdvice();
  bas_StartJournal::Stop("QMXOdbKtbC");
  ddr_Model::UnRegisterExtension(ktbC_TableCollContainer::Names::kRepositoryName);
  ddr_Model::UnRegisterExtension(ktbC_EventSeriesTypeCont::Names::kRepositoryName);
  ddr_Model::UnRegisterExtension(ktbC_EventSeriesCont::Names::kRepositoryName);
  ddr_Model::UnRegisterExtension(ktbC_ElemProgActivationCont::Names::kRepositoryName);
}
