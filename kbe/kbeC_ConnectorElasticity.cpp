#include "kbe/kbeC_ConnectorElasticity.h"

#include "framework/fw_FieldTable.h"
#include "kbe/kbeC_Traits.h"
#include "kbe/kbeC_assert.h"
#include "kbe/kbeC_Checks.h"

kbeC_ConnectorElasticity::kbeC_ConnectorElasticity(const cls_ReadVisitor& r) : kbeC_ConnectorBehaviorOption(r) { fw_ReadFields(*this, r); }
void kbeC_ConnectorElasticity::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kbeC_ConnectorElasticity* kbeC_ConnectorElasticity::Copy() const { return new kbeC_ConnectorElasticity(*this); }
bool kbeC_ConnectorElasticity::operator==(const kbeC_ConnectorElasticity& o) const { return fw_EqualFields(*this, o); }
bool kbeC_ConnectorElasticity::SameAs(const kbeC_ConnectorBehaviorOption& o) const { return *this == static_cast<const kbeC_ConnectorElasticity&>(o); }
void kbeC_ConnectorElasticity::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kbeC_ConnectorElasticity>(r); }
void kbeC_ConnectorElasticity::CowDtor(void* p) { fw_CowDtor<kbeC_ConnectorElasticity>(p); }
const kbeC_ConnectorOptions& kbeC_ConnectorElasticity::GetOptions() const { return kbeC_Present(options, "options"); }
kbeC_ConnectorOptions& kbeC_ConnectorElasticity::ModifyOptions() { return kbeC_Present(options, "options"); }

void kbeC_ConnectorElasticity::AssertValid() const {
  kbeC_SpringLike s{components, static_cast<int>(behavior), static_cast<int>(coupling), dependencies, temperatureDependency,
                    frequencyDependency, independentComponents, table, options.IsNull() ? nullptr : &options.Get()};
  kbeC_CheckSpringLike(s, "Elasticity");
}
