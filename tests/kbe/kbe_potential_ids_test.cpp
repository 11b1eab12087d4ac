// The last-used potential ids are kept by the options themselves: every potential a script adds
// counts, removing one gives no id back, and scripts cannot set them: an option being made takes
// the id it held (so that it is rebuilt from what it showed), an existing option never.
#include <nlohmann/json.hpp>

#include <string>

#include "command/cmd_Session.h"
#include "tests/kbe/kbe_fixtures.h"

namespace {

class KbePotentialIds : public ::testing::Test {
 protected:
  void SetUp() override {
    kbe_Start();
    Ok(R"({"op":"create","path":["M"]})");
    Ok(R"({"op":"create","path":["M","connectorSections","S"],"type":"ConnectorSection"})");
  }
  cmd_Json Ok(const std::string& line) {
    cmd_Json r = s_.ExecuteLine(line);
    EXPECT_TRUE(r["ok"].get<bool>()) << line << "\n -> " << r.dump();
    return r["result"];
  }
  std::string Refusal(const std::string& line) {
    cmd_Json r = s_.ExecuteLine(line);
    EXPECT_FALSE(r["ok"].get<bool>()) << line;
    return r.contains("error") ? r["error"].value("message", "") : "";
  }
  // A member of the option at position 0.
  std::string At(const std::string& member) { return R"(["M","connectorSections","S","behaviorOptions",0,")" + member + R"("])"; }
  cmd_Json Get(const std::string& member) { return Ok(R"({"op":"get","path":)" + At(member) + "}"); }
  cmd_Session s_;
};

TEST_F(KbePotentialIds, EveryPotentialAddedCountsAndNoneGivesItsIdBack) {
  struct Case {
    const char* type;
    const char* list;
    const char* lastId;
    const char* other;  // the last id of the other list, untouched (or null)
  };
  const Case cases[] = {
      {"ConnectorPlasticity", "connectorPotentials", "lastId", nullptr},
      {"ConnectorFriction", "connectorPotentials", "lastId", nullptr},
      {"ConnectorDamage", "initiationPotentials", "lastIniId", "lastEvoId"},
      {"ConnectorDamage", "evolutionPotentials", "lastEvoId", "lastIniId"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(std::string(c.type) + " " + c.list);
    const std::string list = c.list;
    // made with two potentials
    Ok(R"({"op":"create","path":["M","connectorSections","S","behaviorOptions",0],"type":")" + std::string(c.type) +
       R"(","values":{")" + list + R"(":[{"componentNumber":1},{"componentNumber":2}]}})");
    EXPECT_EQ(Get(c.lastId), 2);
    // one more, inserted by position
    Ok(R"({"op":"create","path":)" + At(list).insert(At(list).size() - 1, ",1") + R"(,"type":"ConnectorPotential"})");
    EXPECT_EQ(Get(c.lastId), 3);
    EXPECT_EQ(Get(list).size(), 3u);
    // removed: the id stays used
    Ok(R"({"op":"delete","path":)" + At(list).insert(At(list).size() - 1, ",0") + "}");
    EXPECT_EQ(Get(list).size(), 2u);
    EXPECT_EQ(Get(c.lastId), 3);
    // the list set anew with one more than it holds
    Ok(R"({"op":"set","path":)" + At(list) + R"(,"value":[{"componentNumber":3},{"componentNumber":4},{"componentNumber":5}]})");
    EXPECT_EQ(Get(c.lastId), 4);
    if (c.other) {
      EXPECT_EQ(Get(c.other), 0);
    }
    // the id is read-only for scripts, whatever the value; the refusal changes nothing
    const std::string readOnly =
        std::string("The member \"") + c.lastId + "\" of " + c.type + " is read-only; it is given only where the object is made";
    for (const std::string& line : {R"({"op":"set","path":)" + At(c.lastId) + R"(,"value":3})",
                                    R"({"op":"set","path":)" + At(c.lastId) + R"(,"value":4})",
                                    R"({"op":"set","path":)" + At(c.lastId) + R"(,"value":9})",
                                    R"({"op":"set","path":["M","connectorSections","S","behaviorOptions",0],"values":{")" +
                                        std::string(c.lastId) + R"(":9}})"}) {
      SCOPED_TRACE(line);
      EXPECT_EQ(Refusal(line), readOnly);
      EXPECT_EQ(Get(c.lastId), 4);
    }
    // an option read out whole is rebuilt as it was
    const cmd_Json whole = Ok(R"({"op":"get","path":["M","connectorSections","S","behaviorOptions",0]})");
    Ok(R"({"op":"set","path":["M","connectorSections","S","behaviorOptions",0],"type":")" + std::string(c.type) +
       R"(","values":)" + [&] {
         cmd_Json v = whole;
         v.erase("type");
         return v.dump();
       }() + "}");
    EXPECT_EQ(Ok(R"({"op":"get","path":["M","connectorSections","S","behaviorOptions",0]})"), whole);
    EXPECT_EQ(Get(c.lastId), 4);
    // but not with an id below the potentials it holds
    EXPECT_EQ(Refusal(R"({"op":"set","path":["M","connectorSections","S","behaviorOptions",0],"type":")" +
                         std::string(c.type) + R"(","values":{")" + list + R"(":[{"componentNumber":1},{"componentNumber":2}],")" +
                         c.lastId + R"(":1}})"),
              std::string("The member \"") + c.lastId + "\" of " + c.type + " counts the potentials added to \"" + list +
                  "\" and cannot be set below 2");
    EXPECT_EQ(Get(c.lastId), 4);
    Ok(R"({"op":"delete","path":["M","connectorSections","S","behaviorOptions",0]})");
  }
}

}  // namespace
