// Shortcuts to options and their members: resolution, modification through the repository,
// and the refusals of members asked of the wrong kind of option.
#include "kbe/kbeC_OptionListShortcuts.h"
#include "kbe/kbeC_Shortcuts.h"
#include "platform/persist/cls_Record.h"
#include "tests/kbe/kbe_fixtures.h"

namespace {

class KbeShortcut : public ::testing::Test {
 protected:
  void SetUp() override {
    kbe_Start();
    db_.CreateModel("Model-1");
    kbe_Sections(db_).Insert("Bushing", kbe_FilledSection());
  }
  ddr_Model& Model() { return *db_.ModifyModel("Model-1"); }
  ddr_Database db_;
};

// Positions in the filled section.
enum : std::int32_t { kElasticity, kDamping, kPlasticity, kFriction, kDamage, kFailure, kLock, kStop };

kbeC_OptionInListShortcut At(std::int32_t i) { return kbeC_OptionInListShortcut("Bushing", i); }

TEST_F(KbeShortcut, MembersOfTheWrongKindAreRefusedWithTheirTexts) {
  struct Case {
    const char* what;
    std::function<void(ddr_Model&)> resolve;
    const char* message;
  };
  const std::vector<Case> cases = {
      {"initiationPotentials of a lock",
       [](ddr_Model& m) { kbeC_InitiationPotentialsListInConnectorBehaviorOptionShortcut(At(kLock)).ConstGet(m); },
       "InitiationPotentials exists only for ConnectorDamage object."},
      {"evolutionPotentials of a friction",
       [](ddr_Model& m) { kbeC_EvolutionPotentialsListInConnectorBehaviorOptionShortcut(At(kFriction)).Get(m); },
       "EvolutionPotentials exists only for ConnectorDamage object."},
      {"connectorPotentials of a damage",
       [](ddr_Model& m) { kbeC_ConnectPotentialsListInConnectorBehaviorOptionShortcut(At(kDamage)).ConstGet(m); },
       "ConnectorPotentials exists only for ConnectorFriction or ConnectorPlasticity object."},
      {"friction's potentials of a plasticity",
       [](ddr_Model& m) { kbeC_ConnectPotentialsListInConnectorFrictionShortcut(At(kPlasticity)).ConstGet(m); },
       "ConnectorPotentials exists only for ConnectorFriction or ConnectorPlasticity object."},
      {"options of a stop",
       [](ddr_Model& m) { kbeC_ConnectorOptionsInConnectorBehaviorOptionShortcut(At(kStop)).Get(m); },
       "ConnectorOptions exists only for ConnectorDamping, ConnectorElasticity, or ConnectorFriction objects."},
      {"initiationOptions of a plasticity",
       [](ddr_Model& m) { kbeC_InitiationOptionsInConnectorBehaviorOptionShortcut(At(kPlasticity)).ConstGet(m); },
       "initiationOptions exists only for the ConnectorDamage object."},
      {"evolutionOptions of an elasticity",
       [](ddr_Model& m) { kbeC_EvolutionOptionsInConnectorBehaviorOptionShortcut(At(kElasticity)).ConstGet(m); },
       "evolutionOptions exists only for the ConnectorDamage object."},
      {"isotropicOptions of a damping",
       [](ddr_Model& m) { kbeC_IsotropicOptionsInConnectorBehaviorOptionShortcut(At(kDamping)).ConstGet(m); },
       "isotropicOptions exists only for the ConnectorPlasticity object."},
      {"kinematicOptions of a damage",
       [](ddr_Model& m) { kbeC_KinematicOptionsInConnectorBehaviorOptionShortcut(At(kDamage)).Get(m); },
       "kinematicOptions exists only for the ConnectorPlasticity object."},
  };
  const ddr_Database before = db_;
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    auto e = qmx_Catch<nex_CmdError>([&] { c.resolve(Model()); });
    EXPECT_EQ(e.Message(), c.message);
  }
  EXPECT_TRUE(db_ == before);
}

TEST_F(KbeShortcut, MembersResolveAndModifyThroughTheRepository) {
  const ddr_Database before = db_;
  kbeC_KinematicOptionsInConnectorBehaviorOptionShortcut kinematic(At(kPlasticity));
  EXPECT_EQ(kinematic.ConstGet(Model()), nullptr);  // the plasticity has none
  EXPECT_THROW(kinematic.Get(Model()), nex_CmdError);
  kbeC_IsotropicOptionsInConnectorBehaviorOptionShortcut isotropic(At(kPlasticity));
  ASSERT_NE(isotropic.ConstGet(Model()), nullptr);
  isotropic.Get(Model()).SetRateFactor(0.5);
  EXPECT_EQ(isotropic.ConstGet(Model())->GetRateFactor(), 0.5);
  EXPECT_FALSE(db_ == before);  // the copy kept its own section
  EXPECT_EQ(kbeC_IsotropicOptionsInConnectorBehaviorOptionShortcut(At(kPlasticity)).ConstGet(*const_cast<ddr_Database&>(before).ModifyModel("Model-1"))->GetRateFactor(), 0.9);

  kbeC_EvolutionPotentialsListInConnectorBehaviorOptionShortcut evo(At(kDamage));
  EXPECT_EQ(evo.ConstGet(Model())->size(), 2u);
  EXPECT_EQ(kbeC_TangentialBehaviorInConnectorBehaviorOptionShortcut(At(kFriction)).ConstGet(Model())->GetShearStressLimit(), 1e3);
  EXPECT_EQ(kbeC_DerivedComponentInConnectorBehaviorOptionShortcut(At(kFriction)).ConstGet(Model())->GetName(), "radial");
  EXPECT_EQ(kinematic.Path(), (std::vector<cow_String>{"connectorSections", "Bushing", "behaviorOptions", "2", "kinematicOptions"}));

  // Positions outside the list and unknown sections name nothing.
  EXPECT_EQ(At(8).ConstGet(Model()), nullptr);
  EXPECT_EQ(At(-1).ConstGet(Model()), nullptr);
  EXPECT_EQ(kbeC_OptionInListShortcut("None", 0).ConstGet(Model()), nullptr);
  EXPECT_THROW(At(8).Get(Model()), nex_CmdError);

  // A stored shortcut reads back to the same address.
  cls_RecordWriter w;
  At(kLock).DBWrite(w);
  const kbeC_OptionInListShortcut back = kbeC_OptionInListShortcut::Ctor(cls_RecordReader(w.Record()));
  EXPECT_TRUE(back.SameAddress(At(kLock)));
  EXPECT_NE(dynamic_cast<const kbeC_ConnectorLock*>(back.ConstGet(Model())), nullptr);

  // Handles rebuild the concrete shortcut their record names.
  const kbeC_ConnectorOptionsShortcut initiation = kbeC_InitiationOptionsInConnectorBehaviorOptionShortcut(At(kDamage));
  cls_RecordWriter h;
  initiation.DBWrite(h);
  const kbeC_ConnectorOptionsShortcut read = kbeC_ConnectorOptionsShortcut::Ctor(cls_RecordReader(h.Record()));
  EXPECT_TRUE(read == initiation);
  EXPECT_EQ(read.ConstGet(Model())->GetRateFactor(), 0.75);
  EXPECT_THROW(kbeC_TangentialBehaviorShortcut::Ctor(cls_RecordReader(h.Record())), nex_CmdError);
}

TEST_F(KbeShortcut, DownToTheOptionsOfATermOfAPotential) {
  const ddr_Database before = db_;
  const kbeC_ConnectorPotentialListShortcut list = kbeC_ConnectPotentialsListInConnectorBehaviorOptionShortcut(At(kPlasticity));
  const kbeC_ConnectorPotentialShortcut potential = kbeC_ConnectorPotentialInConnectorPotentialListShortcut(list, 1);
  const kbeC_DerivedComponentShortcut derived = kbeC_DerivedComponentInConnectorPotentialShortcut(potential);
  const kbeC_CDCTermListShortcut terms = kbeC_CdcTermsListInDerivedComponentShortcut(derived);
  const kbeC_CDCTermShortcut term = kbeC_CDCTermInCDCTermListShortcut(terms, 0);
  const kbeC_ConnectorOptionsShortcut options = kbeC_ConnectorOptionsInCDCTermShortcut(term);
  EXPECT_EQ(options.Path(), (std::vector<cow_String>{"connectorSections", "Bushing", "behaviorOptions", "2", "connectorPotentials",
                                                     "1", "derivedComponent", "cdcTerms", "0", "options"}));
  EXPECT_EQ(derived.ConstGet(Model())->GetName(), "radial");
  EXPECT_EQ(terms.ConstGet(Model())->size(), 2u);
  EXPECT_EQ(options.ConstGet(Model())->GetRateFactor(), 0.9);
  options.Get(Model()).SetInterpolation(kbeC_ConnectorOptions::InterpolationEnm::LOGARITHMIC);
  EXPECT_EQ(options.ConstGet(Model())->GetInterpolation(), kbeC_ConnectorOptions::InterpolationEnm::LOGARITHMIC);
  EXPECT_FALSE(db_ == before);

  // The second term has no options; a third term and the first potential's derived component do
  // not exist.
  EXPECT_EQ(kbeC_ConnectorOptionsInCDCTermShortcut(kbeC_CDCTermInCDCTermListShortcut(terms, 1)).ConstGet(Model()), nullptr);
  EXPECT_EQ(kbeC_CDCTermInCDCTermListShortcut(terms, 2).ConstGet(Model()), nullptr);
  const kbeC_ConnectorPotentialShortcut first = kbeC_ConnectorPotentialInConnectorPotentialListShortcut(list, 0);
  EXPECT_THROW(kbeC_DerivedComponentInConnectorPotentialShortcut(first).Get(Model()), nex_CmdError);
}

// The whole option list of a section and an option by position through the list's shortcut: they
// resolve to what the section holds, change it copy-on-write, refuse what is not there without a
// change, and read back from their records as the concrete shortcut they were.
TEST_F(KbeShortcut, TheOptionListAndAnOptionInItByTheListsShortcut) {
  const ddr_Database before = db_;
  const kbeC_ConnectorBehaviorOptionListShortcut list = kbeC_ConnectorBehaviorOptionListIMPLSC("Bushing");
  EXPECT_EQ(list.Path(), (std::vector<cow_String>{"connectorSections", "Bushing", "behaviorOptions"}));
  ASSERT_NE(list.ConstGet(Model()), nullptr);
  EXPECT_EQ(list.ConstGet(Model())->size(), 8u);
  const kbeC_ConnectorBehaviorOptionShortcut lock = kbeC_ConnectorBehaviorOptionInConnectorBehaviorListShortcut(list, kLock);
  EXPECT_EQ(lock.Path(), At(kLock).Path());
  EXPECT_EQ(lock.ConstGet(Model()), At(kLock).ConstGet(Model()));

  // Nothing there: null to read, refused to modify, and the refusals change nothing.
  const kbeC_ConnectorBehaviorOptionListShortcut none = kbeC_ConnectorBehaviorOptionListIMPLSC("None");
  EXPECT_EQ(none.ConstGet(Model()), nullptr);
  EXPECT_EQ(kbeC_ConnectorBehaviorOptionInConnectorBehaviorListShortcut(none, 0).ConstGet(Model()), nullptr);
  for (std::int32_t position : {-1, 8}) {
    SCOPED_TRACE(position);
    EXPECT_EQ(kbeC_ConnectorBehaviorOptionInConnectorBehaviorListShortcut(list, position).ConstGet(Model()), nullptr);
    EXPECT_THROW(kbeC_ConnectorBehaviorOptionInConnectorBehaviorListShortcut(list, position).Get(Model()), nex_CmdError);
  }
  EXPECT_THROW(none.Get(Model()), nex_CmdError);
  EXPECT_THROW(kbeC_ConnectorBehaviorOptionListShortcut().ConstGet(Model()), nex_CmdError);
  EXPECT_TRUE(db_ == before);

  // A change through the list's shortcut lands in the model's section and nowhere else.
  list.Get(Model()).RemoveLast();
  EXPECT_EQ(list.ConstGet(Model())->size(), 7u);
  EXPECT_EQ(kbeC_ConnectorBehaviorOptionListIMPLSC("Bushing").ConstGet(*const_cast<ddr_Database&>(before).ModifyModel("Model-1"))->size(), 8u);
  dynamic_cast<kbeC_ConnectorLock&>(lock.Get(Model())).SetMaxMotion(7.5);
  EXPECT_EQ(dynamic_cast<const kbeC_ConnectorLock*>(At(kLock).ConstGet(Model()))->GetMaxMotion(), 7.5);

  // Records read back to the same addresses, through the handles of the addressed classes.
  cls_RecordWriter w;
  lock.DBWrite(w);
  const kbeC_ConnectorBehaviorOptionShortcut back = kbeC_ConnectorBehaviorOptionShortcut::Ctor(cls_RecordReader(w.Record()));
  EXPECT_TRUE(back == lock);
  EXPECT_FALSE(back == kbeC_ConnectorBehaviorOptionShortcut(At(kLock)));  // same place, another kind of shortcut
  EXPECT_EQ(back.ConstGet(Model()), At(kLock).ConstGet(Model()));
  cls_RecordWriter l;
  list.DBWrite(l);
  EXPECT_TRUE(kbeC_ConnectorBehaviorOptionListShortcut::Ctor(cls_RecordReader(l.Record())) == list);
  EXPECT_THROW(kbeC_ConnectorBehaviorOptionListShortcut::Ctor(cls_RecordReader(w.Record())), nex_CmdError);
}

}  // namespace
