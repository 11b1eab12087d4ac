// Metadata, enumerations and records of every amplitude kind: registration and family, reads
// through the family's root, refusals of bad records and bad script
// values.
#include <memory>
#include <string>
#include <vector>

#include "kam/kamC_Amplitude.h"
#include "kam/kamC_BaselineCorrection.h"
#include "kam/kamC_CorrelationComponent.h"
#include "kam/kamC_EquallySpaced.h"
#include "kam/kamC_PsdDefinition.h"
#include "kam/kamC_SpectrumAmplitude.h"
#include "kam/kamC_Tabular.h"
#include "platform/base/cow_COW.h"
#include "platform/persist/cls_ClassRegistrar.h"
#include "platform/persist/cls_Family.h"
#include "platform/persist/cls_Record.h"
#include "tests/kam/kam_test.h"

namespace {

// Every class: registered name, scripting name, row of the architecture table, family.
struct Kind {
  const char* name;
  const char* script;
  unsigned row;
  bool amplitude;
};

const std::vector<Kind>& Kinds() {
  static const std::vector<Kind> kinds = {
      {"kamC_Tabular", "TabularAmplitude", 2, true},
      {"kamC_EquallySpaced", "EquallySpacedAmplitude", 3, true},
      {"kamC_Periodic", "PeriodicAmplitude", 4, true},
      {"kamC_Modulated", "ModulatedAmplitude", 5, true},
      {"kamC_Decay", "DecayAmplitude", 6, true},
      {"kamC_SmoothStep", "SmoothStepAmplitude", 7, true},
      {"kamC_SolutionDependent", "SolutionDependentAmplitude", 8, true},
      {"kamC_ActuatorAmplitude", "ActuatorAmplitude", 9, true},
      {"kamC_UserAmplitude", "UserAmplitude", 10, true},
      {"kamC_SpectrumAmplitude", "SpectrumAmplitude", 11, true},
      {"kamC_Spectrum", "Spectrum", 12, true},
      {"kamC_PsdDefinition", "PsdDefinition", 13, true},
      {"kamC_CorrelationComponent", "CorrelationComponent", 14, false},
      {"kamC_BaselineCorrection", "BaselineCorrection", 15, false},
  };
  return kinds;
}

class KamPersistence : public ::testing::Test {
 protected:
  void SetUp() override { kam_Start(); }
};

struct Owned {
  const cls_ClassMetadata* md;
  void* p;
  Owned(const cls_ClassMetadata& m, void* obj) : md(&m), p(obj) {}
  Owned(const Owned&) = delete;
  ~Owned() { md->Destroy(p); }
};

TEST_F(KamPersistence, MetadataOfEveryClass) {
  auto& reg = cls_ClassRegistrar::Instance();
  const cls_ClassMetadata* root = reg.ByName("kamC_Amplitude");
  ASSERT_NE(root, nullptr);
  EXPECT_EQ(root->TypeId(), (580u << 16) | 1u);
  EXPECT_EQ(root->Version(), 424);
  EXPECT_FALSE(root->CanConstruct());
  ASSERT_EQ(root->Attributes().size(), 1u);
  EXPECT_EQ(root->Attributes()[0].handle.Name(), "timeSpan");
  EXPECT_EQ(root->Attributes()[0].type, 14);
  EXPECT_THROW(root->NewDefault(), nex_CmdError);
  for (const Kind& k : Kinds()) {
    SCOPED_TRACE(k.name);
    const cls_ClassMetadata* md = reg.ByScriptName(k.script);
    ASSERT_NE(md, nullptr);
    EXPECT_EQ(md->Name(), k.name);
    EXPECT_EQ(md->TypeId(), (580u << 16) | k.row);
    EXPECT_EQ(md->Version(), 424);
    EXPECT_EQ(md->Flag(), 1);
    EXPECT_NE(md->Dtor(), nullptr);
    EXPECT_TRUE(md->CanConstruct());
    EXPECT_EQ(md->IsA(*root), k.amplitude);
    EXPECT_STREQ(md->RootName(), k.amplitude ? "kamC_Amplitude" : k.name);
    // An amplitude's fields start with its root's; scripting names are the member names.
    if (k.amplitude) {
      EXPECT_EQ(md->Attributes().at(0).handle.Name(), "timeSpan");
    }
    for (const cls_Attribute& a : md->Attributes()) {
      EXPECT_EQ(a.count, 1);
      EXPECT_NE(md->FindScriptField(a.handle.Name().view()), nullptr) << a.handle.Name();
    }
  }
}

// The generic tests read each class as itself; the repository reads amplitudes through the root.
TEST_F(KamPersistence, EveryAmplitudeReadsThroughTheFamilyRoot) {
  for (const Kind& k : Kinds()) {
    if (!k.amplitude) continue;
    SCOPED_TRACE(k.name);
    const cls_ClassMetadata& md = *cls_ClassRegistrar::Instance().ByName(k.name);
    Owned o(md, md.NewDefault());
    md.FindScriptField("timeSpan")->set(o.p, cow_String("TOTAL"));
    cls_RecordWriter w;
    md.Write(o.p, w);
    const cls_Record rec = w.Take();
    kamC_Amplitude* a = cls_NewFromReader<kamC_Amplitude>(cls_RecordReader(rec));
    EXPECT_EQ(a->ClassTypeId(), md.TypeId());
    EXPECT_EQ(a->GetTimeSpan(), kamC_Amplitude::TimeSpanEnm::TOTAL);
    EXPECT_TRUE(*a == *static_cast<const kamC_Amplitude*>(o.p));
    cow_Destroy(a);
  }
}

TEST_F(KamPersistence, EnumerationTablesKeepTheirOrderAndValues) {
  using C = kamC_CorrelationComponent;
  using A = C::CorrelationApproachEnm;
  // Listed CORRELATED, UNCORRELATED, USER, MOVING_NOISE; stored as 0, 1, 3, 2.
  const char* names[] = {"CORRELATED", "UNCORRELATED", "USER", "MOVING_NOISE"};
  const A values[] = {A::CORRELATED, A::UNCORRELATED, A::USER, A::MOVING_NOISE};
  const int ints[] = {0, 1, 3, 2};
  using E = omu_PrimEnum<A, 1>;
  for (int i = 0; i < 4; ++i) {
    EXPECT_STREQ(E::Name(i), names[i]);
    EXPECT_EQ(E::Value(i), values[i]);
    EXPECT_EQ(static_cast<int>(values[i]), ints[i]);
    EXPECT_EQ(E(cow_String(names[i])).GetValue(), values[i]);
  }
  EXPECT_EQ(E(A::USER).GetString(), "USER");
  EXPECT_EQ(E(A::MOVING_NOISE).GetString(), "MOVING_NOISE");
  auto e = qmx_Catch<nex_CmdError>([] { E(cow_String("user")); });
  EXPECT_EQ(e.Message(), "omu_PrimEnum(const cow_String&) - str not allowed: user  Permissible: CORRELATED, "
                         "UNCORRELATED, USER, MOVING_NOISE");
  // a stored USER reads back as 3 and is written as its literal again
  C c;
  c.SetApproach(A::USER);
  cls_Record rec = cls_ToRecord(c);
  EXPECT_EQ(std::get<cow_String>(*rec.Find("approach")), "USER");
  EXPECT_EQ(static_cast<int>(C(cls_RecordReader(rec)).GetApproach()), 3);

  // the other enumerations by value
  using TimeSpan = omu_PrimEnum<kamC_Amplitude::TimeSpanEnm, 1>;
  EXPECT_EQ(TimeSpan(cow_String("TOTAL")).GetValue(), kamC_Amplitude::TimeSpanEnm::TOTAL);
  EXPECT_STREQ(kamC_Amplitude::TimeSpanLabel(kamC_Amplitude::TimeSpanEnm::STEP), "Step Time");
  EXPECT_STREQ(kamC_Amplitude::TimeSpanLabel(kamC_Amplitude::TimeSpanEnm::TOTAL), "Total Time");
  using S = kamC_SpectrumAmplitude;
  EXPECT_EQ(static_cast<int>(omu_PrimEnum<S::EventUnitsEnm, 1>(cow_String("EVENT_GRAVITY")).GetValue()), 3);
  EXPECT_EQ(static_cast<int>(omu_PrimEnum<S::SpecificationUnitsEnm, 1>(cow_String("GRAVITY")).GetValue()), 3);
  EXPECT_EQ(static_cast<int>(omu_PrimEnum<S::SolutionEnm, 1>(cow_String("RELATIVE_VALUE")).GetValue()), 1);
  EXPECT_EQ(static_cast<int>(omu_PrimEnum<S::MethodEnm, 1>(cow_String("CALCULATE")).GetValue()), 1);
  EXPECT_EQ(static_cast<int>(omu_PrimEnum<kamC_PsdDefinition::PsdTypeEnm, 1>(cow_String("DB")).GetValue()), 2);
  EXPECT_STREQ((omu_PrimEnum<kamC_Tabular::SmoothEnm, 1>::Name(0)), "SOLVER_DEFAULT");
  EXPECT_EQ(omu_LiteralCount(omu_LiteralTable(kamC_EquallySpaced::SmoothEnm{})), 1);
}

TEST_F(KamPersistence, SmoothingTakesANumberOrTheSolversDefault) {
  const cls_ClassMetadata& md = *cls_ClassRegistrar::Instance().ByScriptName("TabularAmplitude");
  const cls_ScriptField* smooth = md.FindScriptField("smooth");
  ASSERT_NE(smooth, nullptr);
  kamC_Tabular t;
  kamC_Amplitude* root = &t;
  EXPECT_EQ(t.GetSmooth(), kam_kUnspecified);
  EXPECT_EQ(std::get<cow_String>(smooth->get(root)), "SOLVER_DEFAULT");
  smooth->set(root, 0.25);
  EXPECT_EQ(t.GetSmooth(), 0.25);
  EXPECT_EQ(std::get<double>(smooth->get(root)), 0.25);
  // a wrong literal is refused by the enumeration and changes nothing
  auto e = qmx_Catch<nex_CmdError>([&] { smooth->set(root, cow_String("solver_default")); });
  EXPECT_EQ(e.Message(),
            "omu_PrimEnum(const cow_String&) - str not allowed: solver_default  Permissible: SOLVER_DEFAULT");
  EXPECT_EQ(t.GetSmooth(), 0.25);
  EXPECT_THROW(smooth->set(root, true), nex_CmdError);
  EXPECT_EQ(t.GetSmooth(), 0.25);
  smooth->set(root, cow_String("SOLVER_DEFAULT"));
  EXPECT_EQ(t.GetSmooth(), kam_kUnspecified);
  // stored as a plain double either way
  EXPECT_EQ(std::get<double>(*cls_ToRecord(t).Find("smooth")), kam_kUnspecified);
}

TEST_F(KamPersistence, BadRecordsAreRefused) {
  const cls_Record tab = cls_ToRecord(kamC_Tabular());
  {
    cls_Record bad = tab;
    bad.Set("timeSpan", cow_String("Step"));
    auto e = qmx_Catch<nex_CmdError>([&] { kamC_Tabular t{cls_RecordReader(bad)}; });
    EXPECT_EQ(e.Message(), "omu_PrimEnum(const cow_String&) - str not allowed: Step  Permissible: STEP, TOTAL");
  }
  {
    // a baseline correction field holding another class
    cls_Record bad = tab;
    bad.Set("baselineCorrection", cls_RecordPtr(std::make_shared<const cls_Record>(cls_ToRecord(kamC_CorrelationComponent()))));
    EXPECT_THROW(kamC_Tabular t{cls_RecordReader(bad)}, nex_CmdError);
  }
  {
    // the abstract root and a record of another family cannot be read as amplitudes
    cls_Record root = tab;
    root.typeId = kamC_Amplitude::TypeId();
    EXPECT_THROW(cls_NewFromReader<kamC_Amplitude>(cls_RecordReader(root)), nex_CmdError);
    cls_Record other = cls_ToRecord(kamC_BaselineCorrection());
    EXPECT_THROW(cls_NewFromReader<kamC_Amplitude>(cls_RecordReader(other)), nex_CmdError);
  }
}

TEST_F(KamPersistence, CopiesAreEqualAndSeparateTheirBaselineCorrection) {
  kamC_Tabular a;
  a.SetBaselineCorrection(kamC_BaselineCorrection(cow_List<double>{0, 1}));
  std::unique_ptr<kamC_Tabular> b(a.Copy());
  EXPECT_TRUE(*b == a);
  EXPECT_EQ(b->GetUid(), a.GetUid());
  ASSERT_TRUE(b->GetBaselineCorrectionHandle().SharesBodyWith(a.GetBaselineCorrectionHandle()));
  b->ModifyBaselineCorrection()->SetIntervals(cow_List<double>{0, 2});
  EXPECT_FALSE(b->GetBaselineCorrectionHandle().SharesBodyWith(a.GetBaselineCorrectionHandle()));
  EXPECT_EQ(a.GetBaselineCorrection().GetIntervals(), (cow_List<double>{0, 1}));
  EXPECT_FALSE(*b == a);
  b->ClearBaselineCorrection();
  EXPECT_FALSE(b->HasBaselineCorrection());
  EXPECT_EQ(b->FindBaselineCorrection(), nullptr);
  EXPECT_THROW(b->GetBaselineCorrection(), nex_CmdError);
  // a fresh object has its own uid
  EXPECT_NE(kamC_Tabular().GetUid(), a.GetUid());
}

}  // namespace
