// The module's error table and assert function, and the material table's rules.
#include <gtest/gtest.h>

#include <iterator>
#include <string>

#include "kma/kmaC_MaterialTable.h"
#include "platform/persist/cls_Record.h"
#include "tests/kma/kmaT_Support.h"

namespace {

const char* const kStated[] = {
    "Number of dependencies specified is less than the minimum.",
    "Detonation energy should be non-negative.",
    "The number of table columns does not match the specified options for eos ignition and growth gas specific data.",
    "Delete number is less than the minimum.",
    "The poisson's ratio given is less than the minimum.",
    "The poisson's ratio given is greater than the maximum.",
    "Value for nmax is less than the minimum.",
    "Value for nmax is more than the maximum.",
    "Eccentricity given is less than the minimum.",
    "Hardening rate given is less than the minimum.",
    "The number of constants must be larger than zero.",
    "Material option has no such sub-option.",
    "Material option does not have an active sub-option of this type.",
    "Offset plastic strain at start of failure must be greater than or equal to zero.",
    "Equivalent plastic strain at failure must be greater than zero.",
    "Invalid state variable number.",
    "Void volume fraction at total failure must be greater than zero.",
    "Critical void volume fraction must be greater than or equal to zero.",
    "",
    "Value for n is less than the minimum.",
    "Value for n is greater than the maximum.",
    "The order n of the polynomial strain energy potential\ncan only take the values 1 or 2\nif the TEST DATA suboption is used.",
    "Fraction is greater than the maximum.",
    "Tabular data for at least one option or suboption\nhas either blank or zero valued row(s).",
    "Beta must be between zero and one inclusive.",
    "Number of properties must be greater than or equal to zero.",
    "Invalid hyperelastic strain energy potential type.",
    "Closure value must be greater than zero.",
    "Relative slope drop must be greater than zero.",
    "Tensile tiffness factor must be greater than zero.",
    "Number of unloading dependencies specified is less than the minimum.",
    "At least three rows of loading data are required.",
    "At least two rows of loading data are required.",
    "Loading data should start at 0.",
    "Gasket contact area may only be defined when gasket thickness behavior has units of force.",
    "invalid flow potential eccentricity in the deviatoric plane.",
    "No compression and No tension are mutually exclusive. Please unselect one of them.",
    "Volumetric preload cannot be used with traction.",
    "Please specify a different set of values for Type, Softening and Mixed Mode Behavior.",
    "The plastic strain at first yield must be zero.",
    " The static yield stress must be defined.",
    "The value of beta should be greater than or equal to zero.",
    "The value of m should be greater than or equal to zero.",
    "The value of r should be greater than 1.",
    "The values of both beta and m cannot be zero at the same time.",
    "There should be atleast one test data for TEST DATA INPUT definition",
    "Mullins data specified using constants requires all three values.",
    "The number of Properties specified does not match the data size.",
    "Hyperelastic material option with N=4 requires temperature dependance.",
    "Damage stabilization viscosity coefficient must be positive.",
    "The value of maximum allowable principal tensile stress should be greater than zero.",
    "The tensile plastic strain at first yield must be zero.",
    "The absolute plastic strain at first yield must be zero.",
    "",
    "The KAPPA given is less than the minimum.",
    "The KAPPA given is greater than the maximum.",
    "Table should contain at least two data rows.",
    "First two cells of the first table row should be (0.,0.)",
    "Anisotropic material type is inappropriate for nonlinear BH material.",
    "Frequency dependency is not applicable for nonlinear BH material.",
    "The volumetric plastic strain at first yield must be zero.",
    "Invalid permeability type.\nCFD models are no longer supported.",
    "The value of angle subdivision increment must be positive.",
    "The value of constituent volume fraction must be less than one and greater than zero.",
    "Constituent table is incomplete.",
    "The value of isotropization coefficient must be greater than or equal to one",
    "Aspect ratio must be blank for cylinder-shaped or spherical-shaped inclusions.",
    "Aspect ratio must be one for spherical-shaped inclusions.",
    "Aspect ratio must be less than one for oblate-shaped or penny-shaped inclusions.",
    "Aspect ratio must be greater than one for prolate-shaped.",
    "The Transition temperature should be less than the melting temperature.",
    "Damage evolution sub-option needs to be specified for use of this damage initiation.",
    "The material definition for this damage intiation needs use of 'Plastic', 'Drucker Prager' or 'Crushable foam'.",
    "The failure index for a damage evolution in the list exceeds permissible value.",
    "More than one damage evolutions with same failure index are not allowed.",
    "Number of damage evolutions in the list exceed permissible count.",
};
static_assert(std::size(kStated) == 76);


TEST(KmaMessages, EveryCodeThrowsItsSentenceFromTheAssertSource) {
  for (int code = 0; code < 76; ++code) {
    SCOPED_TRACE(code);
    EXPECT_NO_THROW(kmaC_Assert(true, static_cast<kmaC_ErrorEnm>(code)));
    kmaT_ExpectFailure([&] { kmaC_Assert(false, static_cast<kmaC_ErrorEnm>(code)); }, kStated[code]);
  }
}

TEST(KmaMessages, CodesWithoutASentenceAndCodesOutsideTheTableThrowAnEmptyMessage) {
  for (int code : {18, 53, 76, 1000, -1}) {
    SCOPED_TRACE(code);
    kmaT_ExpectFailure([&] { kmaC_Assert(false, static_cast<kmaC_ErrorEnm>(code)); }, "");
  }
}

// --- the material table -------------------------------------------------------------------------

TEST(KmaTable, EveryRowNeedsANonZeroCellUnlessTheFirstMayBeEmpty) {
  struct Case {
    const char* what;
    cow_2DArray<double> data;
    bool allowEmptyFirstRow;
    bool passes;
  };
  const Case cases[] = {
      {"empty table", cow_2DArray<double>(), false, true},
      {"rows without columns", cow_2DArray<double>(3, 0), false, true},
      {"one zero cell in a row is enough to be filled", {{0.0, 0.0, 5.0}}, false, true},
      {"zero first row", {{0.0, 0.0}, {1.0, 2.0}}, false, false},
      {"zero first row allowed", {{0.0, 0.0}, {1.0, 2.0}}, true, true},
      {"zero second row", {{1.0, 2.0}, {0.0, 0.0}}, false, false},
      {"zero second row even when the first may be empty", {{1.0, 2.0}, {0.0, 0.0}}, true, false},
      {"zero last row", {{1.0, 2.0}, {3.0, 0.0}, {0.0, 0.0}}, false, false},
      {"negative zero is zero", {{-0.0, 0.0}}, false, false},
      {"negative values fill a row", {{-1.0, 0.0}}, false, true},
      {"a zeroed table of a size", cow_2DArray<double>(2, 2), false, false},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    kmaC_MaterialTable t(c.data);
    t.AllowEmptyFirstRow(c.allowEmptyFirstRow);
    if (c.passes) EXPECT_NO_THROW(t.AssertValid());
    else kmaT_ExpectFailure([&] { t.AssertValid(); }, kBlankRow);
  }
  // The sized constructor fills with zeros, so only the first-row exemption lets one row pass.
  kmaC_MaterialTable sized(1, 3);
  EXPECT_EQ(sized.Rows(), 1u);
  EXPECT_EQ(sized.Columns(), 3u);
  kmaT_ExpectFailure([&] { sized.AssertValid(); }, kBlankRow);
  sized.AllowEmptyFirstRow(true);
  EXPECT_NO_THROW(sized.AssertValid());
}

TEST(KmaTable, SortOrdersByTheLastColumnsMostSignificantLastAndKeepsTies) {
  // Rows (label, t, f): the label is the first column.
  const cow_2DArray<double> abc = {{1.0, 20.0, 1.0}, {2.0, 10.0, 1.0}, {3.0, 5.0, 0.0}};
  struct Case {
    const char* what;
    cow_2DArray<double> in;
    int keys;
    cow_2DArray<double> out;
  };
  const Case cases[] = {
      {"no keys: untouched", abc, 0, abc},
      {"negative count: untouched", abc, -2, abc},
      {"two keys", abc, 2, {{3.0, 5.0, 0.0}, {2.0, 10.0, 1.0}, {1.0, 20.0, 1.0}}},
      {"one key keeps ties in order", abc, 1, {{3.0, 5.0, 0.0}, {1.0, 20.0, 1.0}, {2.0, 10.0, 1.0}}},
      {"ties in every key keep their order",
       {{1.0, 7.0}, {2.0, 3.0}, {3.0, 7.0}, {4.0, 3.0}, {5.0, 7.0}},
       1,
       {{2.0, 3.0}, {4.0, 3.0}, {1.0, 7.0}, {3.0, 7.0}, {5.0, 7.0}}},
      {"more keys than columns sorts by all of them", {{2.0, 1.0}, {1.0, 1.0}}, 5, {{1.0, 1.0}, {2.0, 1.0}}},
      {"descending input", {{3.0}, {2.0}, {1.0}}, 1, {{1.0}, {2.0}, {3.0}}},
      {"no rows", cow_2DArray<double>(0, 3), 2, cow_2DArray<double>(0, 3)},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    kmaC_MaterialTable t(c.in);
    const cls_Uid uid = t.GetUid();
    t.Sort(c.keys);
    EXPECT_TRUE(t.GetTable() == c.out);
    EXPECT_EQ(t.GetUid(), uid);
  }
}

TEST(KmaTable, SortingACopyLeavesTheOriginal) {
  kmaC_MaterialTable a(cow_2DArray<double>{{2.0}, {1.0}});
  kmaC_MaterialTable b = a;
  b.Sort(1);
  EXPECT_EQ(a(0, 0), 2.0);
  EXPECT_EQ(b(0, 0), 1.0);
}

TEST(KmaTable, WritesTableThenFlag) {
  kmaT_Start();
  kmaC_MaterialTable t(cow_2DArray<double>{{0.0, 0.0}, {210000.0, 0.3}});
  t.AllowEmptyFirstRow(true);
  cls_RecordWriter w;
  t.DBWrite(w);
  const cls_Record rec = w.Take();
  ASSERT_EQ(rec.fields.size(), 2u);
  EXPECT_EQ(rec.fields[0].first, "table");
  EXPECT_EQ(rec.fields[1].first, "allowEmptyFirstRow");
  EXPECT_TRUE(cls_ValueEqual(rec.fields[1].second, true));
}

}  // namespace
