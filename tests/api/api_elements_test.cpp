// Typed access to the elements of a repository of several classes, and the library guard.
#include <gtest/gtest.h>

#include <string>

#include "QMXOdbAttr.h"
#include "tests/support/qmx_test.h"

namespace {

class ApiElements : public ::testing::Test {
 protected:
  void SetUp() override {
    qmx_StartLibrary();
    kbpC_CircularProfile c;
    c.SetR(0.5);
    qmx::Profiles(model).Insert("C-1", c);
    kbpC_PipeProfile p;
    p.SetR(2.0);
    qmx::Profiles(model).Insert("P-1", p);
  }
  const kbpC_BeamProfileContainer& Read() const { return qmx::Profiles(static_cast<const ddr_Model&>(model)); }
  ddr_Model model;
};

TEST_F(ApiElements, FindAnswersTheElementOnlyAsItsOwnClassOrABase) {
  const kbpC_CircularProfile* c = qmx::Find<kbpC_CircularProfile>(Read(), "C-1");
  ASSERT_NE(c, nullptr);
  EXPECT_EQ(c->GetR(), 0.5);
  EXPECT_EQ(qmx::Find<kbpC_BeamProfile>(Read(), "C-1"), c);
  EXPECT_EQ(qmx::Find<kbpC_PipeProfile>(Read(), "C-1"), nullptr);
  EXPECT_EQ(qmx::Find<kbpC_CircularProfile>(Read(), "P-1"), nullptr);
  EXPECT_EQ(qmx::Find<kbpC_CircularProfile>(Read(), "None"), nullptr);
}

TEST_F(ApiElements, ModifyRefusesAnotherClassAndAMissingKeyAndChangesNothing) {
  const ddr_Model before = model;
  EXPECT_STREQ(qmx_Catch<nex_CmdError>([&] { qmx::Modify<kbpC_PipeProfile>(qmx::Profiles(model), "C-1"); }).what(),
               "The element \"C-1\" of profiles is a kbpC_CircularProfile, not a kbpC_PipeProfile");
  // A missing key gets the repository's own refusal, the one its untyped Get gives.
  const std::string missing =
      qmx_Catch<QMXBasException>([&] { qmx::Profiles(model).Get("None"); }).what();
  EXPECT_EQ(qmx_Catch<QMXBasException>([&] { qmx::Modify<kbpC_PipeProfile>(qmx::Profiles(model), "None"); }).what(),
            missing);
  EXPECT_TRUE(model == before);
}

TEST_F(ApiElements, ModifySeparatesTheElementFromCopies) {
  const ddr_Model before = model;
  qmx::Modify<kbpC_PipeProfile>(qmx::Profiles(model), "P-1").SetR(3.0);
  EXPECT_EQ(qmx::Find<kbpC_PipeProfile>(Read(), "P-1")->GetR(), 3.0);
  EXPECT_EQ(qmx::Find<kbpC_PipeProfile>(qmx::Profiles(before), "P-1")->GetR(), 2.0);
}

TEST(ApiLibrary, GuardsNestAndTheLastOneStops) {
  qmx_StartLibrary();
  const int base = QMXOdbAttrEO2_libraryCount();
  {
    qmx::Library outer;
    EXPECT_EQ(QMXOdbAttrEO2_libraryCount(), base + 1);
    {
      qmx::Library inner;
      EXPECT_EQ(QMXOdbAttrEO2_libraryCount(), base + 2);
    }
    EXPECT_EQ(QMXOdbAttrEO2_libraryCount(), base + 1);
  }
  EXPECT_EQ(QMXOdbAttrEO2_libraryCount(), base);
  // Still started by the load: a model gets every repository.
  ddr_Model model;
  EXPECT_EQ(qmx::Materials(static_cast<const ddr_Model&>(model)).Size(), 0u);
}

}  // namespace
