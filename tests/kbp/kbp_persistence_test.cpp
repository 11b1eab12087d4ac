#include <map>
#include <memory>
#include <string>
#include <vector>

#include "kbp/kbpC_BeamProfile.h"
#include "kbp/kbpC_BoxProfile.h"
#include "kbp/kbpC_CircularProfile.h"
#include "kbp/kbpC_GeneralizedProfile.h"
#include "kbp/kbpC_PipeProfile.h"
#include "kbp/kbpC_RectangularProfile.h"
#include "platform/persist/cls_ClassRegistrar.h"
#include "platform/persist/cls_Family.h"
#include "platform/persist/cls_Record.h"
#include "platform/base/cow_COW.h"
#include "tests/kbp/kbp_test.h"

namespace {

// Every kind: registered name, scripting name, row of the architecture table, persistent fields
// in write order with their attribute types.
struct Kind {
  const char* name;
  const char* script;
  unsigned row;
  std::vector<std::pair<std::string, int>> fields;
};

const std::vector<Kind>& Kinds() {
  static const std::vector<Kind> kinds = {
      {"kbpC_RectangularProfile", "RectangularProfile", 2, {{"a", 10}, {"b", 10}}},
      {"kbpC_BoxProfile", "BoxProfile", 3,
       {{"a", 10}, {"b", 10}, {"uniformThickness", 13}, {"t1", 10}, {"t2", 10}, {"t3", 10}, {"t4", 10}}},
      {"kbpC_CircularProfile", "CircularProfile", 4, {{"r", 10}}},
      {"kbpC_PipeProfile", "PipeProfile", 5, {{"r", 10}, {"t", 10}, {"integrationScheme", 14}}},
      {"kbpC_HexagonalProfile", "HexagonalProfile", 6, {{"r", 10}, {"t", 10}}},
      {"kbpC_TrapezoidalProfile", "TrapezoidalProfile", 7, {{"a", 10}, {"b", 10}, {"c", 10}, {"d", 10}}},
      {"kbpC_IbeamProfile", "IProfile", 8,
       {{"l", 10}, {"h", 10}, {"b1", 10}, {"b2", 10}, {"t1", 10}, {"t2", 10}, {"t3", 10}}},
      {"kbpC_LbeamProfile", "LProfile", 9, {{"a", 10}, {"b", 10}, {"t1", 10}, {"t2", 10}}},
      {"kbpC_TbeamProfile", "TProfile", 10, {{"b", 10}, {"h", 10}, {"l", 10}, {"tf", 10}, {"tw", 10}}},
      {"kbpC_CbeamProfile", "ChannelProfile", 11,
       {{"l", 10}, {"h", 10}, {"b1", 10}, {"b2", 10}, {"t1", 10}, {"t2", 10}, {"t3", 10}, {"o", 10}}},
      {"kbpC_HatProfile", "HatProfile", 12,
       {{"l", 10}, {"h", 10}, {"b", 10}, {"b1", 10}, {"b2", 10}, {"t1", 10}, {"t2", 10}, {"t3", 10}}},
      {"kbpC_ArbitraryProfile", "ArbitraryProfile", 13, {{"table", cls_AttrDoubleTable}}},
      {"kbpC_GeneralizedProfile", "GeneralizedProfile", 14,
       {{"area", 10}, {"i11", 10}, {"i12", 10}, {"i22", 10}, {"j", 10}, {"gammaO", 10}, {"gammaW", 10}}},
  };
  return kinds;
}

class KbpPersistence : public ::testing::Test {
 protected:
  void SetUp() override { kbp_Start(); }
};

using ProfilePtr = std::unique_ptr<kbpC_BeamProfile, void (*)(kbpC_BeamProfile*)>;
ProfilePtr Own(void* root) {
  return ProfilePtr(static_cast<kbpC_BeamProfile*>(root), [](kbpC_BeamProfile* p) { cow_Destroy(p); });
}

TEST_F(KbpPersistence, MetadataOfEveryKind) {
  auto& reg = cls_ClassRegistrar::Instance();
  const cls_ClassMetadata* root = reg.ByName("kbpC_BeamProfile");
  ASSERT_NE(root, nullptr);
  EXPECT_EQ(root->TypeId(), (612u << 16) | 1u);
  EXPECT_STREQ(root->ScriptName(), "Profile");
  EXPECT_FALSE(root->CanConstruct());
  EXPECT_TRUE(root->Attributes().empty());
  EXPECT_THROW(root->NewDefault(), nex_CmdError);
  for (const Kind& k : Kinds()) {
    SCOPED_TRACE(k.name);
    const cls_ClassMetadata* md = reg.ByScriptName(k.script);
    ASSERT_NE(md, nullptr);
    EXPECT_EQ(md->Name(), k.name);
    EXPECT_EQ(md->TypeId(), (612u << 16) | k.row);
    EXPECT_EQ(md->Flag(), 1);
    EXPECT_NE(md->Dtor(), nullptr);
    EXPECT_STREQ(md->RootName(), "kbpC_BeamProfile");
    EXPECT_TRUE(md->IsA(*root));
    EXPECT_FALSE(root->IsA(*md));
    EXPECT_TRUE(md->CanConstruct());
    ASSERT_EQ(md->Attributes().size(), k.fields.size());
    for (std::size_t i = 0; i < k.fields.size(); ++i) {
      const cls_Attribute& a = md->Attributes()[i];
      EXPECT_EQ(a.handle.Number(), static_cast<int>(i));
      EXPECT_EQ(a.handle.Name(), k.fields[i].first);
      EXPECT_EQ(a.type, k.fields[i].second);
      EXPECT_EQ(a.count, 1);
      // scripting names are the member names
      ASSERT_NE(md->FindScriptField(k.fields[i].first), nullptr);
    }
  }
  // the kinds are not one another
  EXPECT_FALSE(reg.ByName("kbpC_PipeProfile")->IsA(*reg.ByName("kbpC_CircularProfile")));
}

// The generic tests read each class as itself; the repository reads profiles through the root.
TEST_F(KbpPersistence, EveryKindReadsThroughTheFamilyRoot) {
  for (const Kind& k : Kinds()) {
    SCOPED_TRACE(k.name);
    const cls_ClassMetadata& md = *cls_ClassRegistrar::Instance().ByName(k.name);
    ProfilePtr plain = Own(md.NewDefault());
    const cls_Record rec = cls_ToRecord(*plain);
    ProfilePtr back = Own(cls_NewFromReader<kbpC_BeamProfile>(cls_RecordReader(rec)));
    EXPECT_EQ(back->ClassTypeId(), md.TypeId());
    EXPECT_EQ(&cls_ClassOf(*back), &md);
    EXPECT_TRUE(*back == *plain);
  }
}

TEST_F(KbpPersistence, ConcreteReadsAndCopies) {
  kbpC_PipeProfile pipe;
  pipe.SetT(0.01);
  pipe.SetIntegrationScheme(kbpC_PipeProfile::IntegrationSchemeEnm::THICK_WALL);
  cls_Record rec = cls_ToRecord(pipe);
  EXPECT_EQ(std::get<cow_String>(*rec.Find("integrationScheme")), "THICK_WALL");
  EXPECT_EQ(kbpC_PipeProfile{cls_RecordReader(rec)}.GetIntegrationScheme(),
            kbpC_PipeProfile::IntegrationSchemeEnm::THICK_WALL);

  // a copy keeps the uid; a new object has its own
  std::unique_ptr<kbpC_PipeProfile> copy(pipe.Copy());
  EXPECT_EQ(*copy, pipe);
  kbpC_PipeProfile fresh;
  fresh.SetT(0.01);
  fresh.SetIntegrationScheme(kbpC_PipeProfile::IntegrationSchemeEnm::THICK_WALL);
  EXPECT_NE(fresh, pipe);
  EXPECT_NE(fresh.GetUid(), pipe.GetUid());
}

TEST_F(KbpPersistence, EqualityComparesTheClassFirst) {
  // two kinds with the same uid and nothing else to tell them apart but the class
  kbpC_CircularProfile circle;
  cls_Record rec = cls_ToRecord(circle);
  rec.typeId = kbpC_PipeProfile::TypeId();
  rec.Set("t", 0.01);
  rec.Set("integrationScheme", cow_String("THIN_WALL"));
  kbpC_PipeProfile pipe{cls_RecordReader(rec)};
  ASSERT_EQ(pipe.GetUid(), circle.GetUid());
  ASSERT_EQ(pipe.GetR(), circle.GetR());
  const kbpC_BeamProfile& a = circle;
  const kbpC_BeamProfile& b = pipe;
  EXPECT_FALSE(a == b);
  EXPECT_FALSE(b == a);
  EXPECT_TRUE(a != b);
}

TEST_F(KbpPersistence, BadRecordsAreRefused) {
  cls_Record pipe = cls_ToRecord(kbpC_PipeProfile());
  {
    cls_Record bad = pipe;
    bad.Set("integrationScheme", cow_String("thin_wall"));
    auto e = qmx_Catch<nex_CmdError>([&] { kbpC_PipeProfile p{cls_RecordReader(bad)}; });
    EXPECT_EQ(e.Message(),
              "omu_PrimEnum(const cow_String&) - str not allowed: thin_wall  Permissible: THIN_WALL, THICK_WALL");
  }
  {
    // a record of another family cannot stand where a profile is expected
    cls_Record other = pipe;
    other.typeId = (616u << 16) | 1u;  // an adaptive mesh control
    EXPECT_THROW(cls_NewFromReader<kbpC_BeamProfile>(cls_RecordReader(other)), nex_CmdError);
  }
  {
    // the abstract root itself cannot be read
    cls_Record root = pipe;
    root.typeId = kbpC_BeamProfile::TypeId();
    EXPECT_THROW(cls_NewFromReader<kbpC_BeamProfile>(cls_RecordReader(root)), nex_CmdError);
  }
}

TEST_F(KbpPersistence, ScriptingRefusalsLeaveTheProfileUnchanged) {
  const cls_ClassMetadata& md = *cls_ClassRegistrar::Instance().ByScriptName("PipeProfile");
  kbpC_PipeProfile pipe;
  const kbpC_PipeProfile before = pipe;
  kbpC_BeamProfile* root = &pipe;
  EXPECT_THROW(md.FindScriptField("integrationScheme")->set(root, cow_String("THICK")), nex_CmdError);
  EXPECT_THROW(md.FindScriptField("r")->set(root, cow_String("1")), nex_CmdError);
  EXPECT_EQ(pipe, before);
  md.FindScriptField("integrationScheme")->set(root, std::int32_t{1});
  EXPECT_EQ(pipe.GetIntegrationScheme(), kbpC_PipeProfile::IntegrationSchemeEnm::THICK_WALL);
}

}  // namespace
