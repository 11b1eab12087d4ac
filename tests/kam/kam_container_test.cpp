// The amplitude repository of every model, its shortcuts, the architecture table, the display
// labels, the module's start and stop, and the command layer reaching all of it by scripting
// names.
#include <nlohmann/json.hpp>

#include <string>
#include <vector>

#include "command/cmd_Session.h"
#include "kam/kamC_AmplitudeContainer.h"
#include "kam/kamC_AmplitudeInAmplitudeContainerShortcut.h"
#include "kam/kamC_AmplitudeShortcut.h"
#include "kam/kamC_BaselineCorrectionInAmplitudeShortcut.h"
#include "kam/kamC_BaselineCorrectionInEquallySpacedShortcut.h"
#include "kam/kamC_BaselineCorrectionInTabularShortcut.h"
#include "kam/kamC_BaselineCorrectionShortcut.h"
#include "kam/kamC_Decay.h"
#include "kam/kamC_EquallySpaced.h"
#include "kam/kamC_Periodic.h"
#include "kam/kamC_PsdDefinition.h"
#include "kam/kamC_Spectrum.h"
#include "kam/kamC_SpectrumAmplitude.h"
#include "kam/kamC_Tabular.h"
#include "kam/kamC_TypeLabelMap.h"
#include "kam/kamC_UserAmplitude.h"
#include "platform/base/bas_StartJournal.h"
#include "platform/base/typ_ArchCompTable.h"
#include "platform/model/ddr_Model.h"
#include "platform/model/omu_ChangeHistory.h"
#include "platform/persist/cls_ClassRegistrar.h"
#include "platform/persist/cls_Record.h"
#include "tests/kam/kam_test.h"

namespace {

class KamContainer : public ::testing::Test {
 protected:
  void SetUp() override {
    kam_Start();
    omu_ChangeHistory::Instance().Clear();
  }
  static kamC_AmplitudeContainer& Amplitudes(ddr_Model& m) {
    return dynamic_cast<kamC_AmplitudeContainer&>(*m.ModifyRepository("amplitudes"));
  }
  // A model with a tabular amplitude with a correction, an equally spaced one without, a decay.
  static ddr_Model Sample() {
    ddr_Model m;
    kamC_Tabular tab;
    tab.SetBaselineCorrection(kamC_BaselineCorrection(cow_List<double>{0, 1}));
    Amplitudes(m).Insert("Ramp", tab);
    Amplitudes(m).Insert("Series", kamC_EquallySpaced());
    Amplitudes(m).Insert("Fade", kamC_Decay());
    omu_ChangeHistory::Instance().Clear();
    return m;
  }
};

using Changes = std::vector<omu_PrimTuple>;

TEST_F(KamContainer, EveryModelHasItsOwnAmplitudeRepository) {
  ddr_Model model;
  mdl_Repository* repo = model.ModifyRepository("amplitudes");
  ASSERT_NE(repo, nullptr);
  EXPECT_STREQ(repo->RepositoryName(), "amplitudes");
  EXPECT_EQ(repo->ElementClass().Name(), "kamC_Amplitude");
  const cls_ClassMetadata* psd = cls_ClassRegistrar::Instance().ByScriptName("PsdDefinition");
  repo->InsertNew("PSD-1", psd->NewDefault());
  const cls_ClassMetadata* cls = nullptr;
  ASSERT_NE(model.FindRepository("amplitudes")->Find("PSD-1", &cls), nullptr);
  EXPECT_EQ(cls, psd);
  EXPECT_FALSE(ddr_Model().FindRepository("amplitudes")->Contains("PSD-1"));
  // the container reads back with every kind as its own class
  kamC_AmplitudeContainer c = Amplitudes(model);
  c.Insert("Spectrum-1", kamC_Spectrum());
  kamC_AmplitudeContainer backC{cls_RecordReader(cls_ToRecord(c))};
  EXPECT_EQ(backC, c);
  EXPECT_NE(dynamic_cast<const kamC_Spectrum*>(backC.ConstGet("Spectrum-1")), nullptr);
  EXPECT_NE(dynamic_cast<const kamC_PsdDefinition*>(backC.ConstGet("PSD-1")), nullptr);
}

TEST_F(KamContainer, ModifyingACopySeparatesOnlyThatAmplitude) {
  ddr_Model a = Sample();
  ddr_Model b = a;
  auto& ca = Amplitudes(a);
  auto& cb = Amplitudes(b);
  omu_ChangeHistory::Instance().Clear();
  ASSERT_TRUE(ca.FindHandle("Ramp")->SharesBodyWith(*cb.FindHandle("Ramp")));
  auto& ramp = dynamic_cast<kamC_Tabular&>(cb.Get("Ramp"));
  ramp.ModifyBaselineCorrection()->SetIntervals(cow_List<double>{0, 5});
  EXPECT_FALSE(ca.FindHandle("Ramp")->SharesBodyWith(*cb.FindHandle("Ramp")));
  EXPECT_TRUE(ca.FindHandle("Fade")->SharesBodyWith(*cb.FindHandle("Fade")));
  const auto& original = dynamic_cast<const kamC_Tabular&>(*ca.ConstGet("Ramp"));
  EXPECT_EQ(original.GetBaselineCorrection().GetIntervals(), (cow_List<double>{0, 1}));
  EXPECT_EQ(ramp.GetBaselineCorrection().GetIntervals(), (cow_List<double>{0, 5}));
  EXPECT_EQ(ramp.GetUid(), original.GetUid());
  EXPECT_NE(ca, cb);
  EXPECT_EQ(omu_ChangeHistory::Instance().Entries(), (Changes{{"kamC_AmplitudeContainer", "Modify", "Ramp"}}));
}

TEST_F(KamContainer, ShortcutsAddressAmplitudesAndTheirCorrections) {
  ddr_Model m = Sample();
  const ddr_Model copy = m;
  const kamC_AmplitudeShortcut ramp = kamC_AmplitudeInAmplitudeContainerShortcut("Ramp");
  EXPECT_EQ(ramp.Path(), (std::vector<cow_String>{"amplitudes", "Ramp"}));
  ASSERT_NE(ramp.ConstGet(m), nullptr);
  EXPECT_EQ(ramp.ConstGet(m)->ClassTypeId(), kamC_Tabular::TypeId());

  const kamC_BaselineCorrectionShortcut inAmp = kamC_BaselineCorrectionInAmplitudeShortcut(ramp);
  const kamC_BaselineCorrectionShortcut inTab = kamC_BaselineCorrectionInTabularShortcut(ramp);
  const kamC_BaselineCorrectionShortcut inEq = kamC_BaselineCorrectionInEquallySpacedShortcut(ramp);
  EXPECT_EQ(inTab.Path(), (std::vector<cow_String>{"amplitudes", "Ramp", "baselineCorrection"}));
  ASSERT_NE(inAmp.ConstGet(m), nullptr);
  EXPECT_EQ(inAmp.ConstGet(m), inTab.ConstGet(m));
  EXPECT_EQ(inEq.ConstGet(m), nullptr);  // the ramp is not equally spaced

  // Refusals name the path and the reason, and record nothing.
  struct Refusal {
    kamC_BaselineCorrectionShortcut sc;
    std::string message;
  };
  const kamC_AmplitudeShortcut series = kamC_AmplitudeInAmplitudeContainerShortcut("Series");
  const kamC_AmplitudeShortcut fade = kamC_AmplitudeInAmplitudeContainerShortcut("Fade");
  const Refusal refusals[] = {
      {inEq, "The shortcut \"amplitudes/Ramp/baselineCorrection\" addresses nothing: the amplitude is not a "
             "kamC_EquallySpaced"},
      {kamC_BaselineCorrectionInEquallySpacedShortcut(series),
       "The shortcut \"amplitudes/Series/baselineCorrection\" addresses nothing: the amplitude has no baseline "
       "correction"},
      {kamC_BaselineCorrectionInAmplitudeShortcut(fade),
       "The shortcut \"amplitudes/Fade/baselineCorrection\" addresses nothing: the amplitude has no baseline "
       "correction"},
      {kamC_BaselineCorrectionInTabularShortcut(kamC_AmplitudeInAmplitudeContainerShortcut("Nope")),
       "There is no \"Nope\" in amplitudes"},
  };
  for (const auto& r : refusals) {
    auto e = qmx_Catch<nex_CmdError>([&] { r.sc.Get(m); });
    EXPECT_EQ(e.Message(), r.message);
  }
  EXPECT_TRUE(omu_ChangeHistory::Instance().Entries().empty());
  EXPECT_TRUE(m == copy);

  // Modification through the shortcut records the amplitude's change and leaves the copy alone.
  inTab.Get(m).SetIntervals(cow_List<double>{0, 0.5, 3});
  EXPECT_EQ(omu_ChangeHistory::Instance().Entries(), (Changes{{"kamC_AmplitudeContainer", "Modify", "Ramp"}}));
  EXPECT_EQ(inAmp.ConstGet(m)->GetIntervals(), (cow_List<double>{0, 0.5, 3}));
  EXPECT_EQ(inAmp.ConstGet(copy)->GetIntervals(), (cow_List<double>{0, 1}));

  // Every shortcut rebuilds from its record as the same concrete class.
  for (const auto& sc : {inAmp, inTab, inEq}) {
    cls_Record rec = cls_ToRecord(sc);
    kamC_BaselineCorrectionShortcut back = kamC_BaselineCorrectionShortcut::Ctor(cls_RecordReader(rec));
    EXPECT_TRUE(back == sc);
    EXPECT_EQ(back.GetImpl().ClassTypeId(), sc.GetImpl().ClassTypeId());
  }
  EXPECT_FALSE(inAmp == inTab);
  cls_Record ampRec = cls_ToRecord(ramp);
  EXPECT_EQ(ampRec.typeId, (580u << 16) | 19u);
  EXPECT_TRUE(kamC_AmplitudeShortcut::Ctor(cls_RecordReader(ampRec)) == ramp);
  // a baseline correction shortcut cannot be read from an amplitude shortcut's record
  EXPECT_THROW(kamC_BaselineCorrectionShortcut::Ctor(cls_RecordReader(ampRec)), nex_CmdError);
}

TEST_F(KamContainer, DisplayLabels) {
  struct Row {
    unsigned typeId;
    const char* label;
  };
  const Row rows[] = {
      {(580u << 16) | 2u, "Tabular"},          {(580u << 16) | 7u, "Smooth Step"},
      {(580u << 16) | 3u, "Equally spaced"},   {(580u << 16) | 4u, "Periodic"},
      {(580u << 16) | 5u, "Modulated"},        {(580u << 16) | 6u, "Decay"},
      {(580u << 16) | 8u, "Solution dependent"}, {(580u << 16) | 9u, "Actuator"},
      {(580u << 16) | 13u, "PSD-Definition"},  {(580u << 16) | 11u, "Spectrum"},
      {(580u << 16) | 12u, "Spectrum"},        {(580u << 16) | 10u, ""},
      {(580u << 16) | 15u, ""},                {0u, ""},
  };
  for (const auto& r : rows) EXPECT_STREQ(kamC_TypeLabelMap::Label(r.typeId), r.label) << (r.typeId & 0xffff);
  EXPECT_STREQ(kamC_Periodic().DisplayLabel(), "Periodic");
  const kamC_Amplitude& user = kamC_UserAmplitude();
  EXPECT_STREQ(user.DisplayLabel(), "");
}

TEST(KamModule, ArchitectureTableNamesEveryClassAtItsTypeId) {
  kam_Start();
  const typ_ArchCompEntry* entry = typ_ArchCompTable::Find(580);
  ASSERT_NE(entry, nullptr);
  // the row count, the empty first row and the names are checked for every module elsewhere
  int registered = 0;
  for (int row = 1; row < entry->Count(); ++row) {
    if (const cls_ClassMetadata* md = cls_ClassRegistrar::Instance().ByName(entry->Row(row).name)) {
      EXPECT_EQ(md->TypeId(), (580u << 16) | static_cast<unsigned>(row));
      ++registered;
    }
  }
  EXPECT_EQ(registered, 17);  // the root, twelve kinds, two records, the container and the wrapper
  // the shortcut classes sit at the rows their type ids name
  EXPECT_EQ(entry->RowOf("kamC_AmplitudeIMPLSC"), static_cast<int>(kamC_AmplitudeIMPLSC::TypeId() & 0xffff));
  EXPECT_EQ(entry->RowOf("kamC_AmplitudeInAmplitudeContainerShortcut"), 19);
  EXPECT_EQ(entry->RowOf("kamC_AmplitudeContainerInModelShortcut"), 22);
  EXPECT_EQ(entry->RowOf("kamC_BaselineCorrectionInEquallySpacedShortcut"), 27);
  EXPECT_EQ(entry->Row(19).first, 17);  // the element shortcut points at the amplitude IMPLSC row
  EXPECT_EQ(entry->Row(22).first, 20);
  EXPECT_EQ(entry->Row(26).first, 23);
  EXPECT_EQ(entry->Row(28).first, 13);
  EXPECT_EQ(entry->Row(28).second, 10);
}

TEST(KamModule, StartsAndStopsCounted) {
  kam_Start();
  const int base = QMXOdbKamC_count();
  ASSERT_GE(base, 1);
  int tally = 0;
  QMXOdbKamC_initialize(tally);
  EXPECT_EQ(tally, 0);
  EXPECT_EQ(QMXOdbKamC_count(), base + 1);
  QMXOdbKamC_finalize(tally);
  EXPECT_EQ(QMXOdbKamC_count(), base);

  const std::size_t mark = bas_StartJournal::Mark();
  for (int i = 0; i < base; ++i) QMXOdbKamC_finalize(tally);
  EXPECT_EQ(tally, -1);
  EXPECT_EQ(ddr_Model().FindRepository("amplitudes"), nullptr);
  const std::size_t metadataCount = cls_ClassRegistrar::Instance().All().size();
  for (int i = 0; i < base; ++i) QMXOdbKamC_initialize(tally);
  EXPECT_EQ(tally, 0);
  EXPECT_NE(ddr_Model().FindRepository("amplitudes"), nullptr);
  EXPECT_EQ(cls_ClassRegistrar::Instance().All().size(), metadataCount);
  EXPECT_STREQ(kamC_TypeLabelMap::Label(kamC_Decay::TypeId()), "Decay");  // rebuilt after the release
  const std::vector<std::string> journal = {"stop QMXOdbKamC", "start QMXOdbKamC",
                                            "register kamC_AmplitudeContainerWrapper"};
  EXPECT_EQ(bas_StartJournal::Since(mark), journal);
}

// --- the command layer ----------------------------------------------------------------------

class KamCommands : public ::testing::Test {
 protected:
  void SetUp() override {
    kam_Start();
    Ok(R"({"op":"create","path":["M"]})");
  }
  cmd_Json Ok(const std::string& line) {
    cmd_Json r = s.ExecuteLine(line);
    EXPECT_TRUE(r["ok"].get<bool>()) << line << "\n -> " << r.dump();
    return r["result"];
  }
  cmd_Json Fails(const std::string& line) {
    cmd_Json r = s.ExecuteLine(line);
    EXPECT_FALSE(r["ok"].get<bool>()) << line << "\n -> " << r.dump();
    return r.contains("error") ? r["error"] : cmd_Json();
  }
  const kamC_Tabular& Ramp() const {
    const auto& c = dynamic_cast<const kamC_AmplitudeContainer&>(*s.Database().FindModel("M")->FindRepository("amplitudes"));
    return dynamic_cast<const kamC_Tabular&>(*c.ConstGet("Ramp"));
  }
  cmd_Session s;
};

// Which class each scripting name makes is checked in the metadata; here one kind end to end.
TEST_F(KamCommands, KindsAreConstructedByScriptingNameAndTheRootIsRefused) {
  Ok(R"({"op":"create","path":["M","amplitudes","A-1"],"type":"SpectrumAmplitude"})");
  EXPECT_EQ(Ok(R"({"op":"get","path":["M","amplitudes","A-1","timeSpan"]})"), "STEP");
  Ok(R"({"op":"validate","path":["M","amplitudes"]})");
  EXPECT_EQ(Fails(R"({"op":"create","path":["M","amplitudes","X"],"type":"BaselineCorrection"})")["message"],
            "BaselineCorrection cannot stand where Amplitude is expected");
  EXPECT_EQ(Fails(R"({"op":"create","path":["M","amplitudes","X"],"type":"Amplitude"})")["message"].get<std::string>().rfind(
                "Amplitude cannot be constructed; name one of its kinds: ", 0),
            0u);
}

TEST_F(KamCommands, MembersAreSetAndReadByScriptingName) {
  Ok(R"({"op":"create","path":["M","amplitudes","Ramp"],"type":"TabularAmplitude",
         "values":{"timeSpan":"TOTAL","smooth":0.05,"data":[[0,0],[0.5,1],[2,1]]}})");
  EXPECT_EQ(Ok(R"({"op":"get","path":["M","amplitudes","Ramp"]})"),
            cmd_Json::parse(R"({"type":"TabularAmplitude","timeSpan":"TOTAL","smooth":0.05,
                                "data":[[0,0],[0.5,1],[2,1]],"baselineCorrection":null})"));
  // wrong values are refused and change nothing (the smoothing literal is checked on the member)
  cmd_Json e = Fails(R"({"op":"set","path":["M","amplitudes","Ramp","timeSpan"],"value":"Total"})");
  EXPECT_EQ(e["message"], "omu_PrimEnum(const cow_String&) - str not allowed: Total  Permissible: STEP, TOTAL");
  EXPECT_EQ(e["kind"], "CmdException");
  EXPECT_EQ(Ok(R"({"op":"get","path":["M","amplitudes","Ramp","timeSpan"]})"), "TOTAL");

  // the optional baseline correction: inline, then by path, then cleared
  Ok(R"({"op":"set","path":["M","amplitudes","Ramp"],"values":{"baselineCorrection":{"intervals":[0,1]}}})");
  EXPECT_EQ(Ok(R"({"op":"get","path":["M","amplitudes","Ramp","baselineCorrection","intervals"]})"),
            cmd_Json::parse("[0.0,1.0]"));
  Ok(R"({"op":"set","path":["M","amplitudes","Ramp","baselineCorrection","intervals"],"value":[0,0]})");
  e = Fails(R"({"op":"validate","path":["M","amplitudes"]})");
  EXPECT_EQ(e["message"], "Invalid baseline correction values, expected non-negative\nmonotonically increasing numbers.");
  EXPECT_EQ(e["kind"], "PrimException");
  EXPECT_EQ(e["file"], "QMXOdbKamC.m/src/kamC_assert");
  Ok(R"({"op":"delete","path":["M","amplitudes","Ramp","baselineCorrection"]})");
  Ok(R"({"op":"validate","path":["M","amplitudes"]})");
  Ok(R"({"op":"set","path":["M","amplitudes","Ramp","baselineCorrection"],"type":"BaselineCorrection",
         "values":{"intervals":[0.5,2]}})");
  ASSERT_TRUE(Ramp().HasBaselineCorrection());
  EXPECT_EQ(Ramp().GetBaselineCorrection().GetIntervals(), (cow_List<double>{0.5, 2}));

  // enumerations of a PSD definition and a spectrum amplitude, the correlation approach by value
  Ok(R"({"op":"create","path":["M","amplitudes","PSD"],"type":"PsdDefinition",
         "values":{"unitType":"DB","dbReference":2e-5,"data":[[1,3,0],[16,2,0]]}})");
  e = Fails(R"({"op":"validate","path":["M","amplitudes","PSD"]})");
  EXPECT_EQ(e["message"], "Frequency band numbers must be between 1 and 15 when using DB.");
  Ok(R"({"op":"create","path":["M","amplitudes","SA"],"type":"SpectrumAmplitude",
         "values":{"method":"CALCULATE","eventUnits":"EVENT_GRAVITY","amplitude":"Quake","solution":1}})");
  EXPECT_EQ(Ok(R"({"op":"get","path":["M","amplitudes","SA","solution"]})"), "RELATIVE_VALUE");
  e = Fails(R"({"op":"set","path":["M","amplitudes","SA","eventUnits"],"value":"GRAVITY"})");
  EXPECT_EQ(e["message"], "omu_PrimEnum(const cow_String&) - str not allowed: GRAVITY  Permissible: "
                          "EVENT_DISPLACEMENT, EVENT_VELOCITY, EVENT_ACCELERATION, EVENT_GRAVITY");
  e = Fails(R"({"op":"set","path":["M","amplitudes","SA","method"],"value":2})");
  EXPECT_EQ(e["message"], "omu_PrimEnum(ENUMTYPE) - Enum value not allowed: 2  Permissible: DEFINE, CALCULATE");

  // validation names the failing amplitude; removing it is journaled and leaves the others
  e = Fails(R"({"op":"validate","path":["M"]})");
  EXPECT_EQ(e["path"], cmd_Json::parse(R"(["M","amplitudes","PSD"])"));
  omu_ChangeHistory::Instance().Clear();
  Ok(R"({"op":"delete","path":["M","amplitudes","PSD"]})");
  EXPECT_EQ(omu_ChangeHistory::Instance().Entries(), (Changes{{"kamC_AmplitudeContainer", "Remove", "PSD"}}));
  Ok(R"({"op":"validate","path":["M"]})");
  EXPECT_EQ(Ok(R"({"op":"list","path":["M","amplitudes"]})"), cmd_Json::parse(R"(["Ramp","SA"])"));
}

// Rows without cells are kept as written, refused by validation with the module's message, and
// survive a save and an open (the check of the opened file reads no cell it lacks).
TEST_F(KamCommands, TablesOfRowsWithoutCellsAreRefusedByValidationAndSurviveTheFile) {
  Ok(R"({"op":"create","path":["M","amplitudes","Empty"],"type":"TabularAmplitude","values":{"data":[[],[]]}})");
  Ok(R"({"op":"create","path":["M","amplitudes","Step"],"type":"SmoothStepAmplitude","values":{"data":[[],[],[]]}})");
  for (const char* name : {"Empty", "Step"}) {
    SCOPED_TRACE(name);
    cmd_Json e = Fails(std::string(R"({"op":"validate","path":["M","amplitudes",")") + name + R"("]})");
    EXPECT_EQ(e["message"], "The Time-Amplitude table should have at least two rows of data.");
  }
  const cmd_Json before = Ok(R"({"op":"get","path":["M","amplitudes"]})");
  EXPECT_EQ(Ok(R"({"op":"get","path":["M","amplitudes","Step","data"]})"), cmd_Json::parse("[[],[],[]]"));
  const std::string file = qmx_TempDir("kam-shapes") + "/shapes.odb";
  Ok(R"({"op":"save","file":")" + file + R"("})");
  Ok(R"({"op":"delete","path":["M"]})");
  Ok(R"({"op":"open","file":")" + file + R"("})");
  EXPECT_EQ(Ok(R"({"op":"get","path":["M","amplitudes"]})"), before);
  EXPECT_EQ(Fails(R"({"op":"validate","path":["M"]})")["message"], "The Time-Amplitude table should have at least two rows of data.");
}

}  // namespace
