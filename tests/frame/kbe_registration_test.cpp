// The connector-behavior module's registrations, in their stated order and groups: its sixteen
// metadata routines (a keyed map in the group of maps), then what this library adds beyond them,
// and its retired layouts.
#include <gtest/gtest.h>

#include <string>
#include <typeinfo>
#include <vector>

#include "kbe/QMXOdbKbeC.h"
#include "kbe/kbeC_BehaviorOptionContainer.h"
#include "kbe/kbeC_CDCTerm.h"
#include "kbe/kbeC_CSWrapper.h"
#include "kbe/kbeC_ConnectorDamage.h"
#include "kbe/kbeC_ConnectorDamping.h"
#include "kbe/kbeC_ConnectorElasticity.h"
#include "kbe/kbeC_ConnectorFailure.h"
#include "kbe/kbeC_ConnectorFriction.h"
#include "kbe/kbeC_ConnectorLock.h"
#include "kbe/kbeC_ConnectorOptions.h"
#include "kbe/kbeC_ConnectorPlasticity.h"
#include "kbe/kbeC_ConnectorPotential.h"
#include "kbe/kbeC_ConnectorSection.h"
#include "kbe/kbeC_ConnectorSectionContainer.h"
#include "kbe/kbeC_ConnectorStop.h"
#include "kbe/kbeC_ContactForce.h"
#include "kbe/kbeC_DerivedComponent.h"
#include "kbe/kbeC_Legacy.h"
#include "kbe/kbeC_Rename.h"
#include "kbe/kbeC_TangentialBehavior.h"
#include "platform/base/omi_Singleton.h"
#include "platform/persist/cls_ClassRegistrar.h"
#include "platform/persist/dbc_Converter.h"
#include "tests/frame/frame_units.h"

namespace {

TEST_F(frame_StoppedLibrary, ConnectorBehaviorModuleRegistersInItsStatedOrder) {
  auto& metadata = omi_Singleton<cls_MetadataRegistrar>::Instance();
  auto& old = omi_Singleton<dbc_OldClassRegistrar>::Instance();
  const std::size_t metadataMark = metadata.Entries().size();
  const std::size_t oldMark = old.Entries().size();
  int tally = 0;
  QMXOdbKbeC_initialize(tally);

  using Fn = cls_MetadataRegistrar::InitFn;
  struct Expected {
    Fn fn;
    unsigned group;
  };
  const Expected expected[] = {
      {&kbeC_ConnectorBehaviorOption::InitializeMetadata, 7},
      {&kbeC_ConnectorOptions::InitializeMetadata, 7},
      {&kbeC_DerivedComponent::InitializeMetadata, 7},
      {&kbeC_CDCTerm::InitializeMetadata, 7},
      {&kbeC_ConnectorPotential::InitializeMetadata, 7},
      {&kbeC_ContactForce::InitializeMetadata, 7},
      {&kbeC_TangentialBehavior::InitializeMetadata, 7},
      {&kbeC_ConnectorElasticity::InitializeMetadata, 7},
      {&kbeC_ConnectorDamping::InitializeMetadata, 7},
      {&kbeC_ConnectorPlasticity::InitializeMetadata, 7},
      {&kbeC_ConnectorFriction::InitializeMetadata, 7},
      {&kbeC_ConnectorDamage::InitializeMetadata, 7},
      {&kbeC_ConnectorFailure::InitializeMetadata, 7},
      {&kbeC_ConnectorLock::InitializeMetadata, 7},
      {&kbeC_ConnectorStop::InitializeMetadata, 7},
      {&kbeC_BehaviorOptionContainer::InitializeMetadata, 3},
      // beyond the sixteen: the section, its repository and the repository's wrapper
      {&kbeC_ConnectorSection::InitializeMetadata, 7},
      {&kbeC_ConnectorSectionContainer::InitializeMetadata, 3},
      {&kbeC_CSWrapper::InitializeMetadata, 4},
  };
  const auto& entries = metadata.Entries();
  ASSERT_EQ(entries.size() - metadataMark, std::size(expected));
  for (std::size_t i = 0; i < std::size(expected); ++i) {
    EXPECT_EQ(entries[metadataMark + i].fn, expected[i].fn) << i;
    EXPECT_EQ(entries[metadataMark + i].group, expected[i].group) << i;
  }

  const std::vector<std::string> legacy = {
      typeid(kbeC_ConnectorDamage_811).name(),    typeid(kbeC_ConnectorDamage_817).name(),
      typeid(kbeC_ConnectorDamping_1022).name(),  typeid(kbeC_ConnectorDamping_811).name(),
      typeid(kbeC_ConnectorElasticity_811).name(), typeid(kbeC_ConnectorFriction_811).name(),
      typeid(kbeC_ConnectorFriction_836).name(),  typeid(kbeC_ConnectorOptions_1022).name(),
      typeid(kbeC_ConnectorPlasticity_811).name(), typeid(kbeC_ConnectorPotential_811).name(),
      typeid(kbeC_Damage_453).name(),             typeid(kbeC_Damage_507).name(),
      typeid(kbeC_Damping_453).name(),            typeid(kbeC_Elasticity_453).name(),
      typeid(kbeC_Failure_453).name(),            typeid(kbeC_Friction_453).name(),
      typeid(kbeC_Friction_507).name(),           typeid(kbeC_Lock_453).name(),
      typeid(kbeC_MotionDiscontinuity_453).name(), typeid(kbeC_Plasticity_453).name(),
      typeid(kbeC_Plasticity_507).name(),         typeid(kbeC_PotentialContainer_507).name(),
      typeid(kbeC_Potential_507).name(),          typeid(kbeC_Stops_453).name(),
      typeid(kbeC_Tabular_453).name(),            typeid(kbeC_CDCTerm_836).name(),
      typeid(kbeC_CDCTerm_1022).name(),           typeid(kbeC_ConnectorBehaviorOption_453).name(),
  };
  std::vector<std::string> got;
  for (std::size_t i = oldMark; i < old.Entries().size(); ++i) {
    EXPECT_EQ(old.Entries()[i].kind, 5) << i;
    const dbc_OldClassVersion& v = old.Entries()[i].holder.Get();
    got.push_back(typeid(v).name());
  }
  EXPECT_EQ(got, legacy);
  QMXOdbKbeC_finalize(tally);
}

}  // namespace
