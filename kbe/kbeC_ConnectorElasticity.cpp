#include "kbe/kbeC_ConnectorElasticity.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kbe/kbeC_Traits.h"
#include "kbe/kbeC_assert.h"
#include "kbe/kbeC_Checks.h"

kbeC_ConnectorElasticity::kbeC_ConnectorElasticity(const cls_ReadVisitor& r) : fw_PersistentClass(r) { fw_ReadFields(*this, r); }
const kbeC_ConnectorOptions& kbeC_ConnectorElasticity::GetOptions() const { return kbeC_Present(options, "options"); }
kbeC_ConnectorOptions& kbeC_ConnectorElasticity::ModifyOptions() { return kbeC_Present(options, "options"); }

void kbeC_ConnectorElasticity::AssertValid() const {
  kbeC_SpringLike s{components, static_cast<int>(behavior), static_cast<int>(coupling), dependencies, temperatureDependency,
                    frequencyDependency, independentComponents, table, options.IsNull() ? nullptr : &options.Get()};
  kbeC_CheckSpringLike(s, "Elasticity");
}

template class fw_PersistentClass<kbeC_ConnectorElasticity, kbeC_ConnectorBehaviorOption>;
