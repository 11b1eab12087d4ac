// The domain container as a model extension: every model holds "adaptiveMeshDomains", whose
// elements are domains, and it round-trips through its wrapper with the model.
#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "kad/kadC_ADWrapper.h"
#include "kad/kadC_AdptMeshDomain.h"
#include "platform/model/ddr_Model.h"
#include "platform/model/mdl_Repository.h"
#include "platform/persist/cls_ClassRegistrar.h"
#include "platform/persist/cls_Record.h"
#include "tests/support/qmx_test.h"

namespace {

TEST(KadDomainModel, EveryModelHoldsItsDomainsBesideItsControls) {
  qmx_StartLibrary();
  ddr_Model model;
  const mdl_Repository* domains = model.FindRepository("adaptiveMeshDomains");
  ASSERT_NE(domains, nullptr);
  EXPECT_EQ(domains->ElementClass().Name(), "kadC_AdptMeshDomain");
  EXPECT_EQ(domains->Count(), 0u);
  const std::vector<cow_String> names = model.RepositoryNames();
  const auto controls = std::find(names.begin(), names.end(), cow_String("adaptiveMeshControls"));
  const auto doms = std::find(names.begin(), names.end(), cow_String("adaptiveMeshDomains"));
  ASSERT_NE(controls, names.end());
  ASSERT_NE(doms, names.end());
  EXPECT_LT(controls, doms);  // registered after the controls

  // The wrapper is registered under its name and round-trips with its domains.
  const cls_ClassMetadata* md = cls_ClassRegistrar::Instance().ByName("kadC_ADWrapper");
  ASSERT_NE(md, nullptr);
  EXPECT_EQ(md->TypeId(), (616u << 16) | 17u);
  kadC_AdptMeshDomCont cont;
  kadC_AdptMeshDomain d;
  d.SetControls("Ale-1");
  d.SetFrequency(4);
  cont.Insert("Domain-1", d);
  kadC_ADWrapper wrapper(cont);
  kadC_ADWrapper back{cls_RecordReader(cls_ToRecord(wrapper))};
  EXPECT_TRUE(back == wrapper);
  EXPECT_EQ(back.Extension().ConstGet("Domain-1")->GetFrequency(), 4);

  // Each model has its own copy.
  ddr_Model other;
  const cls_ClassMetadata& element = domains->ElementClass();
  model.ModifyRepository("adaptiveMeshDomains")->InsertNew("D", element.NewDefault());
  EXPECT_EQ(model.FindRepository("adaptiveMeshDomains")->Count(), 1u);
  EXPECT_EQ(other.FindRepository("adaptiveMeshDomains")->Count(), 0u);
}

}  // namespace
