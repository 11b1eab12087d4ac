#include "kbe/kbeC_ConnectorDamping.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kbe/kbeC_Traits.h"
#include "kbe/kbeC_assert.h"
#include "kbe/kbeC_Checks.h"

kbeC_ConnectorDamping::kbeC_ConnectorDamping(const cls_ReadVisitor& r) : fw_PersistentClass(r) { fw_ReadFields(*this, r); }
const kbeC_ConnectorOptions& kbeC_ConnectorDamping::GetOptions() const { return kbeC_Present(options, "options"); }
kbeC_ConnectorOptions& kbeC_ConnectorDamping::ModifyOptions() { return kbeC_Present(options, "options"); }

void kbeC_ConnectorDamping::AssertValid() const {
  const bool structural = connDampType == ConnDampTypeEnum::STRUCTURAL;
  kbeC_Assert(!(structural && behavior == BehaviorEnm::NONLINEAR), kbeC_StructuralNonlinear);
  kbeC_Assert(!(connDampType != ConnDampTypeEnum::VISCOUS && temperatureDependency), kbeC_TemperatureNeedsViscous);
  kbeC_Assert(!(structural && dependencies != 0), kbeC_StructuralDependencies);
  kbeC_SpringLike s{components, static_cast<int>(behavior), static_cast<int>(coupling), dependencies, temperatureDependency,
                    frequencyDependency, independentComponents, table, options.IsNull() ? nullptr : &options.Get()};
  kbeC_CheckSpringLike(s, "Damping");
}

template class fw_PersistentClass<kbeC_ConnectorDamping, kbeC_ConnectorBehaviorOption>;
