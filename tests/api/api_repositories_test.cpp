// Typed access to a model's repositories: each function reaches the repository of its scripting
// name, reading does not separate, modifying separates from copies of the model, and a missing
// repository is refused by name.
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

#include "QMXOdbAttr.h"
#include "tests/support/qmx_test.h"

namespace {

struct ApiRepositoryCase {
  const char* name;
  std::function<const mdl_Repository*(const ddr_Model&)> read;
  std::function<mdl_Repository*(ddr_Model&)> modify;
};

#define API_REPOSITORY_CASE(name, Function)                                                      \
  ApiRepositoryCase{name, [](const ddr_Model& m) -> const mdl_Repository* { return qmx::Function(m).RepositoryFace(); }, \
                    [](ddr_Model& m) -> mdl_Repository* { return qmx::Function(m).RepositoryFace(); }}

const std::vector<ApiRepositoryCase> kApiRepositoryCases = {
    API_REPOSITORY_CASE("materials", Materials),
    API_REPOSITORY_CASE("fieldConstituents", FieldConstituents),
    API_REPOSITORY_CASE("amplitudes", Amplitudes),
    API_REPOSITORY_CASE("connectorSections", ConnectorSections),
    API_REPOSITORY_CASE("profiles", Profiles),
    API_REPOSITORY_CASE("constraints", Constraints),
    API_REPOSITORY_CASE("analyticalFields", AnalyticalFields),
    API_REPOSITORY_CASE("discreteFields", DiscreteFields),
    API_REPOSITORY_CASE("filters", Filters),
    API_REPOSITORY_CASE("loadCases", LoadCases),
    API_REPOSITORY_CASE("optimizationTasks", OptimizationTasks),
    API_REPOSITORY_CASE("tableCollections", TableCollections),
    API_REPOSITORY_CASE("eventSeriesTypes", EventSeriesTypes),
    API_REPOSITORY_CASE("eventSeriesDatas", EventSeriesDatas),
    API_REPOSITORY_CASE("elementProgressiveActivations", ElementProgressiveActivations),
    API_REPOSITORY_CASE("adaptiveMeshControls", AdaptiveMeshControls),
    API_REPOSITORY_CASE("adaptiveMeshDomains", AdaptiveMeshDomains),
    API_REPOSITORY_CASE("remeshingRules", RemeshingRules),
};
#undef API_REPOSITORY_CASE

// An extension of another class that claims the name "materials", as a wrong registration would.
class ApiImpostor : public mdl_Extension {
 public:
  ApiImpostor* Copy() const override { return mem_New<ApiImpostor>(*this); }
  void DBWrite(const cls_WriteVisitor&) const override {}
  unsigned ClassTypeId() const override { return 0xFFFF0001u; }
  mdl_Repository* Repository() override { return nullptr; }
  const mdl_Repository* Repository() const override { return nullptr; }
  const char* ExtensionName() const override { return "materials"; }
  bool Equals(const mdl_Extension& o) const override { return o.ClassTypeId() == ClassTypeId(); }
};

class ApiRepositories : public ::testing::Test {
 protected:
  void SetUp() override { qmx_StartLibrary(); }
};

TEST_F(ApiRepositories, EachFunctionReachesTheRepositoryOfItsName) {
  ddr_Database db;
  ddr_Model& model = db.CreateModel("Model-1");
  const ddr_Model& view = model;
  for (const auto& c : kApiRepositoryCases) {
    SCOPED_TRACE(c.name);
    const mdl_Repository* read = c.read(view);
    EXPECT_EQ(std::string(read->RepositoryName()), c.name);
    EXPECT_EQ(read, view.FindRepository(c.name));
    mdl_Repository* modify = c.modify(model);
    EXPECT_EQ(std::string(modify->RepositoryName()), c.name);
    EXPECT_EQ(modify, view.FindRepository(c.name));
  }
  // Every repository a model holds has its function (engineering features are an object).
  std::vector<std::string> names;
  for (const auto& n : view.RepositoryNames()) names.push_back(n.str());
  std::vector<std::string> covered;
  for (const auto& c : kApiRepositoryCases) covered.push_back(c.name);
  std::sort(names.begin(), names.end());
  std::sort(covered.begin(), covered.end());
  EXPECT_EQ(names, covered);
}

TEST_F(ApiRepositories, ReadingSharesAndModifyingSeparatesFromACopy) {
  ddr_Model original;
  kbpC_CircularProfile c;
  c.SetR(1.0);
  qmx::Profiles(original).Insert("C-1", c);
  const ddr_Model copy = original;
  // Reading the copy shares the original's repository.
  EXPECT_EQ(&qmx::Profiles(copy), &qmx::Profiles(static_cast<const ddr_Model&>(original)));

  ddr_Model changed = copy;
  qmx::Profiles(changed).Remove("C-1");
  qmx::Materials(changed).Insert("Steel", kmaC_Material());
  qmx::EngineeringFeatures(changed).GetInertiaContainer().Insert("PM-1", kefC_PointMassInertia());

  EXPECT_TRUE(qmx::Profiles(copy).Has("C-1"));
  EXPECT_EQ(qmx::Materials(copy).Size(), 0u);
  EXPECT_EQ(qmx::EngineeringFeatures(copy).GetInertiaContainer().Size(), 0u);
  EXPECT_FALSE(qmx::Profiles(static_cast<const ddr_Model&>(changed)).Has("C-1"));
  EXPECT_TRUE(qmx::Materials(static_cast<const ddr_Model&>(changed)).Has("Steel"));
  EXPECT_EQ(qmx::EngineeringFeatures(static_cast<const ddr_Model&>(changed)).GetInertiaContainer().Size(), 1u);
}

TEST_F(ApiRepositories, AMissingRepositoryIsRefusedByName) {
  // A model made while the material module's repositories are not registered lacks them.
  ddr_Model before;
  const ddr_Model::ExtensionHandle materials = *before.FindExtension("materials");
  const ddr_Model::ExtensionHandle features = *before.FindExtension("engineeringFeatures");
  ddr_Model::UnRegisterExtension("materials");
  ddr_Model::UnRegisterExtension("engineeringFeatures");
  ddr_Model lacking;
  ddr_Model::RegisterExtension(materials.Get());
  ddr_Model::RegisterExtension(features.Get());

  const ddr_Model& view = lacking;
  EXPECT_STREQ(qmx_Catch<nex_CmdError>([&] { qmx::Materials(lacking); }).what(),
               "The model has no repository \"materials\"");
  EXPECT_STREQ(qmx_Catch<nex_CmdError>([&] { qmx::Materials(view); }).what(),
               "The model has no repository \"materials\"");
  EXPECT_STREQ(qmx_Catch<nex_CmdError>([&] { qmx::EngineeringFeatures(lacking); }).what(),
               "The model has no repository \"engineeringFeatures\"");
  // The others are still there, and nothing was added by asking.
  EXPECT_EQ(qmx::Profiles(view).Size(), 0u);
  EXPECT_EQ(view.FindExtension("materials"), nullptr);
}

TEST_F(ApiRepositories, ARepositoryOfAnotherClassIsRefusedByItsClass) {
  ddr_Model before;
  const ddr_Model::ExtensionHandle materials = *before.FindExtension("materials");
  ddr_Model::RegisterExtension(ApiImpostor());  // replaces the material container's registration
  ddr_Model impostor;
  ddr_Model::RegisterExtension(materials.Get());

  EXPECT_STREQ(qmx_Catch<nex_CmdError>([&] { qmx::Materials(impostor); }).what(),
               "The model's \"materials\" is not a kmaC_MCWrapper");
  EXPECT_STREQ(qmx_Catch<nex_CmdError>([&] { qmx::Materials(static_cast<const ddr_Model&>(impostor)); }).what(),
               "The model's \"materials\" is not a kmaC_MCWrapper");
  EXPECT_EQ(impostor.FindExtension("materials")->Get().ClassTypeId(), 0xFFFF0001u);
  // A model made after the registration is put back has the material container again.
  ddr_Model again;
  EXPECT_EQ(qmx::Materials(static_cast<const ddr_Model&>(again)).Size(), 0u);
}

}  // namespace
