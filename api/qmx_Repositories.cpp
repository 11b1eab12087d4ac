#include "api/qmx_Repositories.h"

#include <string>

#include "kad/kadC_ACWrapper.h"
#include "kad/kadC_ADWrapper.h"
#include "kam/kamC_AmplitudeContainerWrapper.h"
#include "kar/karC_RRWrapper.h"
#include "kbe/kbeC_CSWrapper.h"
#include "kbp/kbpC_BPCWrapper.h"
#include "kco/kcoC_CCWrapper.h"
#include "kfl/kflC_FCWrapper.h"
#include "klc/klcC_LCCWrapper.h"
#include "kma/kmaC_FCWrapper.h"
#include "kma/kmaC_MCWrapper.h"
#include "kop/kopC_TCWrapper.h"
#include "ktb/ktbC_EPAWrapper.h"
#include "ktb/ktbC_ESTWrapper.h"
#include "ktb/ktbC_ESWrapper.h"
#include "ktb/ktbC_TCWrapper.h"
#include "platform/base/nex_Exception.h"

namespace {
// The model's extension of that name, refused unless it is of the class the caller will cast to:
// the type id is the class's identity, so the static casts below are exact.
void QmxCheckExtension(const ddr_Model& model, const char* name, unsigned typeId, const char* className) {
  const ddr_Model::ExtensionHandle* e = model.FindExtension(name);
  if (!e || e->IsNull()) nex_ThrowCmd(std::string("The model has no repository \"") + name + "\"");
  if (e->Get().ClassTypeId() != typeId) nex_ThrowCmd(std::string("The model's \"") + name + "\" is not a " + className);
}

// Ext is the class the model holds (a wrapper, or the container itself); Container the repository
// that Ext hands out as its mdl_Repository face.
template <class Ext, class Container>
const Container& QmxRead(const ddr_Model& model) {
  const char* name = Container::Names::kRepositoryName;
  QmxCheckExtension(model, name, Ext::TypeId(), Ext::kClassName);
  return *static_cast<const Container*>(model.FindRepository(name));
}

template <class Ext, class Container>
Container& QmxModify(ddr_Model& model) {
  const char* name = Container::Names::kRepositoryName;
  QmxCheckExtension(model, name, Ext::TypeId(), Ext::kClassName);
  return *static_cast<Container*>(model.ModifyRepository(name));
}
}  // namespace

#define QMX_TYPED_REPOSITORY(Function, Ext, Container)                                      \
  Container& qmx::Function(ddr_Model& model) { return QmxModify<Ext, Container>(model); } \
  const Container& qmx::Function(const ddr_Model& model) { return QmxRead<Ext, Container>(model); }

QMX_TYPED_REPOSITORY(Materials, kmaC_MCWrapper, kmaC_MaterialContainer)
QMX_TYPED_REPOSITORY(FieldConstituents, kmaC_FCWrapper, kmaC_FieldConstituentContainer)
QMX_TYPED_REPOSITORY(Amplitudes, kamC_AmplitudeContainerWrapper, kamC_AmplitudeContainer)
QMX_TYPED_REPOSITORY(ConnectorSections, kbeC_CSWrapper, kbeC_ConnectorSectionContainer)
QMX_TYPED_REPOSITORY(Profiles, kbpC_BPCWrapper, kbpC_BeamProfileContainer)
QMX_TYPED_REPOSITORY(Constraints, kcoC_CCWrapper, kcoC_ConstraintContainer)
QMX_TYPED_REPOSITORY(AnalyticalFields, kfdC_AnalyticalFieldContainer, kfdC_AnalyticalFieldContainer::Map)
QMX_TYPED_REPOSITORY(DiscreteFields, kfdC_DiscreteFieldContainer, kfdC_DiscreteFieldContainer::Map)
QMX_TYPED_REPOSITORY(Filters, kflC_FCWrapper, kflC_FilterContainer)
QMX_TYPED_REPOSITORY(LoadCases, klcC_LCCWrapper, klcC_LoadCaseContainer)
QMX_TYPED_REPOSITORY(OptimizationTasks, kopC_TCWrapper, kopC_TaskContainer)
QMX_TYPED_REPOSITORY(TableCollections, ktbC_TCWrapper, ktbC_TableCollContainer)
QMX_TYPED_REPOSITORY(EventSeriesTypes, ktbC_ESTWrapper, ktbC_EventSeriesTypeCont)
QMX_TYPED_REPOSITORY(EventSeriesDatas, ktbC_ESWrapper, ktbC_EventSeriesCont)
QMX_TYPED_REPOSITORY(ElementProgressiveActivations, ktbC_EPAWrapper, ktbC_ElemProgActivationCont)
QMX_TYPED_REPOSITORY(AdaptiveMeshControls, kadC_ACWrapper, kadC_AdptMeshCtrlCont)
QMX_TYPED_REPOSITORY(AdaptiveMeshDomains, kadC_ADWrapper, kadC_AdptMeshDomCont)
QMX_TYPED_REPOSITORY(RemeshingRules, karC_RRWrapper, karC_RemeshingRuleCont)

#undef QMX_TYPED_REPOSITORY

// The engineering features are one object, not a repository: reached as the object the model
// holds, which is the extension itself.
kefC_EngineeringFeatures& qmx::EngineeringFeatures(ddr_Model& model) {
  using E = kefC_EngineeringFeatures;
  QmxCheckExtension(model, E::kExtensionName, E::TypeId(), E::kClassName);
  return *static_cast<E*>(static_cast<mdl_Extension*>(model.ModifyObject(E::kExtensionName)));
}

const kefC_EngineeringFeatures& qmx::EngineeringFeatures(const ddr_Model& model) {
  using E = kefC_EngineeringFeatures;
  QmxCheckExtension(model, E::kExtensionName, E::TypeId(), E::kClassName);
  return *static_cast<const E*>(static_cast<const mdl_Extension*>(model.FindObject(E::kExtensionName)));
}
