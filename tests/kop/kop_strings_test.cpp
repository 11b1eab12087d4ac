// Display texts of the optimization settings, the label maps and the strategy mapping.
#include "kop/kopC_Labels.h"
#include "kop/kopC_OrimConstraint.h"
#include "kop/kopC_OrimObjectiveFunction.h"
#include "kop/kopC_Strings.h"
#include "tests/kop/kop_test.h"

namespace {

TEST(KopStrings, TargetsAndOperationsWithTheirGaps) {
  using T = kopC_TargetEnm;
  EXPECT_EQ(kopC_targetAsString(T::MINIMIZE), "Minimize");
  EXPECT_EQ(kopC_targetAsString(T::MAXIMIZE), "Maximize");
  EXPECT_EQ(kopC_targetAsString(T::MINIMIZE_MAXIMUM), "Minimize the maximum");
  EXPECT_EQ(kopC_targetAsString(static_cast<T>(3)), "");
  EXPECT_EQ(kopC_targetAsString(static_cast<T>(-1)), "");
  const char* operations[] = {"Minimum", "Maximum", "", "Sum", "", "N/A", ""};
  for (int i = 0; i < 7; ++i)
    EXPECT_EQ(kopC_operationAsString(static_cast<kopC_VariableOperationEnm>(i)), operations[i]) << i;
  EXPECT_EQ(kopC_operationAsString(static_cast<kopC_VariableOperationEnm>(-1)), "");
}

TEST(KopStrings, CombinationMethodsInOrder) {
  const char* expected[] = {"Add", "Subtract", "Multiply", "Divide", "Minimum", "Maximum", "Weighted add",
                            "Absolute difference", "Absolute", "Sine", "Cosine", "Tangent", "Log", "Natural log",
                            "Square root", "Exponential", "Nth root", "Nth power", "Integer", "Nearest integer",
                            "Sign", "Filter", "Cut-off", "Delta over 1 iteration", "Delta over 2 iterations",
                            "Delta over 3 iterations", "Delta over 4 iterations", "Delta over 5 iterations",
                            "Delta over 6 iterations", "Normalize", "Normalize first"};
  for (int i = 0; i < 31; ++i)
    EXPECT_EQ(kopC_combinedTermRequestMethodAsString(static_cast<kopC_CombinedTermRequestMethodEnm>(i)), expected[i]);
  EXPECT_EQ(kopC_combinedTermRequestMethodAsString(static_cast<kopC_CombinedTermRequestMethodEnm>(31)), "");
}

TEST(KopStrings, ConstraintComparisons) {
  using M = kopC_RestrictionMethodEnm;
  struct Case {
    M method;
    double value;
    const char* text;
  };
  for (const Case& c : {Case{M::RELATIVE_LESS_THAN_EQUAL, 0.05, "<= 5 %"}, Case{M::ABSOLUTE_LESS_THAN_EQUAL, 0.05, "<= 0.05"},
                        Case{M::RELATIVE_LESS_THAN_EQUAL, 0.3, "<= 30 %"}, Case{M::ABSOLUTE_GREATER_THAN_EQUAL, 12.5, ">= 12.5"},
                        Case{M::ABSOLUTE_EQUAL, -3, "= -3"}, Case{M::RELATIVE_EQUAL, 1, "= 100 %"},
                        Case{M::RELATIVE_GREATER_THAN_EQUAL, 0.125, ">= 12.5 %"}, Case{M::ABSOLUTE_LESS_THAN_EQUAL, 0, "<= 0"}}) {
    kopC_OrimConstraint constraint;
    constraint.SetRestrictionMethod(c.method);
    constraint.SetRestrictionValue(c.value);
    EXPECT_EQ(kopC_constraintComparisonAsString(constraint), c.text);
  }
}

kopC_OrimObjectiveFunction Objectives(const std::vector<std::pair<std::string, bool>>& entries) {
  std::vector<kopC_OrimObjectiveFunction::ObjectiveHandle> list;
  for (const auto& [name, suppressed] : entries) {
    kopC_Objective o;
    o.SetDesignResponse(name);
    o.SetSuppressed(suppressed);
    list.emplace_back(o);
  }
  kopC_OrimObjectiveFunction f;
  f.SetObjectives(cow_List<kopC_OrimObjectiveFunction::ObjectiveHandle>(list));
  return f;
}

TEST(KopStrings, ObjectiveListsAreJoinedAndCutAt39Characters) {
  // 18 + 2 + 19 = 39 characters
  const std::string a = "StrainEnergyStep-1", b = "DisplacementNode-17";
  EXPECT_EQ(kopC_designResponseAsString(Objectives({{a, false}, {b, false}})), a + ", " + b);
  EXPECT_EQ(kopC_designResponseAsString(Objectives({{a, false}, {b + "X", false}})), a + ", " + b + "...");
  EXPECT_EQ(kopC_designResponseAsString(Objectives({{a, false}, {"Skipped", true}, {b, false}})), a + ", " + b);
  EXPECT_EQ(kopC_designResponseAsString(Objectives({{"Skipped", true}, {"R", false}})), "R");
  EXPECT_EQ(kopC_designResponseAsString(Objectives({{"A", true}, {"B", true}})), "");
  EXPECT_EQ(kopC_designResponseAsString(Objectives({})), "");
  const std::string longer(60, 'x');
  EXPECT_EQ(kopC_designResponseAsString(Objectives({{longer, false}})).str(), std::string(39, 'x') + "...");
}

TEST(KopStrings, TheCutCountsCharactersAndNeverSplitsOne) {
  const std::string e = "\xC3\xA9";          // one character in two bytes
  const std::string snow = "\xE2\x98\x83";   // one in three
  const std::string clef = "\xF0\x9D\x84\x9E";  // one in four
  struct Case {
    const char* what;
    std::string names;
    std::string shown;
  };
  const Case cases[] = {
      {"39 two-byte characters are shown whole", [&] { std::string t; for (int i = 0; i < 39; ++i) t += e; return t; }(),
       [&] { std::string t; for (int i = 0; i < 39; ++i) t += e; return t; }()},
      {"40 two-byte characters keep 39", [&] { std::string t; for (int i = 0; i < 40; ++i) t += e; return t; }(),
       [&] { std::string t; for (int i = 0; i < 39; ++i) t += e; return t + "..."; }()},
      {"a three-byte character at the 39th place stays whole", std::string(38, 'a') + snow + "b",
       std::string(38, 'a') + snow + "..."},
      {"a four-byte character at the 40th place goes whole", std::string(39, 'a') + clef, std::string(39, 'a') + "..."},
      {"a four-byte character at the 39th place, 39 characters", std::string(38, 'a') + clef,
       std::string(38, 'a') + clef},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    EXPECT_EQ(kopC_designResponseAsString(Objectives({{c.names, false}})).str(), c.shown);
  }
}

TEST(KopStrings, AlgorithmsShowTheirDisplayLabels) {
  EXPECT_EQ(kopC_algorithmAsString(kopC_AlgorithmEnm::GENERAL_OPTIMIZATION), "General");
  EXPECT_EQ(kopC_algorithmAsString(kopC_AlgorithmEnm::CONDITION_BASED_OPTIMIZATION), "Condition-based");
  for (int other : {-1, 2, 3})
    EXPECT_EQ(kopC_algorithmAsString(static_cast<kopC_AlgorithmEnm>(other)), "") << other;
}

TEST(KopStrings, AlgorithmFromStrategy) {
  for (int s : {1, 4, 16, 64})
    EXPECT_EQ(kopC_getAlgorithmFromStrategy(s), kopC_AlgorithmEnm::CONDITION_BASED_OPTIMIZATION) << s;
  for (int s : {0, 2, 3, 5, 8, 32, 128, 129, 256, -1, -4, -64, INT32_MIN, INT32_MAX})
    EXPECT_EQ(kopC_getAlgorithmFromStrategy(s), kopC_AlgorithmEnm::GENERAL_OPTIMIZATION) << s;
}

TEST(KopLabels, TaskKindsHaveTheirLabelsInOrderAndNothingElseHasOne) {
  kop_Start();
  const auto& full = kopC_TaskTypeLabelMap::Instance();
  const auto& shortened = kopC_ShortenedTaskTypeLabelMap::Instance();
  ASSERT_EQ(full.Size(), 4u);
  ASSERT_EQ(shortened.Size(), 4u);
  const unsigned ids[] = {0x03A40008, 0x03A40009, 0x03A40069, 0x03A40078};
  const char* longLabels[] = {"Topology optimization", "Shape optimization", "Sizing optimization", "Bead optimization"};
  const char* shortLabels[] = {"Topology", "Shape", "Sizing", "Bead"};
  for (int i = 0; i < 4; ++i) {
    EXPECT_EQ(full.Entries()[i].first, ids[i]);
    EXPECT_EQ(full.Entries()[i].second, longLabels[i]);
    EXPECT_EQ(full.Label(ids[i]), longLabels[i]);
    EXPECT_EQ(shortened.Entries()[i].first, ids[i]);
    EXPECT_EQ(shortened.Label(ids[i]), shortLabels[i]);
  }
  for (unsigned other : {0x03A40007u, 0x03A40004u, 0x03A40001u, 0u})
    EXPECT_EQ(full.Label(other), "") << other;
  // Released and built again.
  kopC_TaskTypeLabelMap::Finalize();
  EXPECT_EQ(kopC_TaskTypeLabelMap::Instance().Label(ids[2]), "Sizing optimization");
}

TEST(KopLabels, EveryIdentifierHasItsGroup) {
  const auto& variableLabels = kopC_VariableSpecLabelMap::Instance();
  EXPECT_EQ(variableLabels.Size(), 107u);
  struct Case {
    const char* id;
    const char* group;
  };
  for (const Case& c : {Case{"CENTER_GRAVITY_Y", "Center of gravity"}, Case{"DAMAGE_LC", "Damage (single)"},
                        Case{"DYN_FREQ", "Eigenfrequency from modal analysis"}, Case{"PEMAG", "Sound pressure level (dBA)"},
                        Case{"INERTIA_XZ", "Moment of inertia"}, Case{"INTERNAL_FORCE_Z_ABS", "Internal force"},
                        Case{"REACTION_FORCE_ABS", "Reaction force"}, Case{"ROT_X", "Rotation"}, Case{"SIG_MISES", "Stress"},
                        Case{"SIG_CONTACT_SHEAR_X", "Contact stress"}, Case{"TSR_ND_PEEQ", "Strain"},
                        Case{"STRAIN_ENERGY", "Strain energy"}, Case{"VOLUME", "Volume"}, Case{"WEIGHT", "Weight"}}) {
    const auto* e = variableLabels.Find(c.id);
    ASSERT_NE(e, nullptr) << c.id;
    EXPECT_STREQ(e->group, c.group) << c.id;
    EXPECT_NE(std::string(e->description), "") << c.id;
  }
  EXPECT_EQ(variableLabels.Find("volume"), nullptr);
  EXPECT_EQ(variableLabels.Find(""), nullptr);
  EXPECT_STREQ(variableLabels.Entries().front().identifier, "BEAD_HEIGHT");
  EXPECT_STREQ(variableLabels.Entries().back().identifier, "SIG_NEUBER_SEQ");
}

}  // namespace
