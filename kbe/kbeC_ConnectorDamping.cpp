#include "kbe/kbeC_ConnectorDamping.h"

#include "framework/fw_FieldTable.h"
#include "kbe/kbeC_Traits.h"
#include "kbe/kbeC_assert.h"
#include "kbe/kbeC_Checks.h"

kbeC_ConnectorDamping::kbeC_ConnectorDamping(const cls_ReadVisitor& r) : kbeC_ConnectorBehaviorOption(r) { fw_ReadFields(*this, r); }
void kbeC_ConnectorDamping::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kbeC_ConnectorDamping* kbeC_ConnectorDamping::Copy() const { return new kbeC_ConnectorDamping(*this); }
bool kbeC_ConnectorDamping::operator==(const kbeC_ConnectorDamping& o) const { return fw_EqualFields(*this, o); }
bool kbeC_ConnectorDamping::SameAs(const kbeC_ConnectorBehaviorOption& o) const { return *this == static_cast<const kbeC_ConnectorDamping&>(o); }
void kbeC_ConnectorDamping::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kbeC_ConnectorDamping>(r); }
void kbeC_ConnectorDamping::CowDtor(void* p) { fw_CowDtor<kbeC_ConnectorDamping>(p); }
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
