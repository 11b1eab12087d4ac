// The modules' own refusals reach a script run by the tool letter for letter, one case per module
// family, with the command layer's context around them: where the path stopped, the step that
// named nothing there and the names that would have been valid.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "tests/support/qmx_test.h"

namespace {

namespace fs = std::filesystem;
using RefusalJson = nlohmann::ordered_json;

struct RefusalCase {
  const char* line;     // a command of the script
  const char* message;  // its refusal, or null when the command must succeed
  const char* kind;
  const char* path;     // where the path stopped (JSON), or null for no path
  const char* member;   // the step or member that failed
};

const char* const kConnectorOptions =
    "ConnectorOptions exists only for ConnectorDamping, ConnectorElasticity, or ConnectorFriction objects.";

const RefusalCase kRefusalCases[] = {
    {R"({"op":"create","path":["M"]})", nullptr, nullptr, nullptr, nullptr},
    // constraints: the empty container, then a missing name
    {R"({"op":"validate","path":["M","constraints","NoSuch"]})", "The Cosntraint container is empty.", "PrimException",
     R"(["M","constraints"])", "NoSuch"},
    {R"({"op":"create","path":["M","constraints","T-1"],"type":"Tie"})", nullptr, nullptr, nullptr, nullptr},
    {R"({"op":"validate","path":["M","constraints","NoSuch"]})", "Constraint does not exist.", "PrimException",
     R"(["M","constraints"])", "NoSuch"},
    {R"({"op":"delete","path":["M","constraints","NoSuch"]})", "Constraint does not exist.", "PrimException",
     R"(["M","constraints"])", "NoSuch"},
    // amplitudes: code 16 for the empty container
    {R"({"op":"get","path":["M","amplitudes","A-1","data"]})", "The amplitude container is empty.", "PrimException",
     R"(["M","amplitudes"])", "A-1"},
    // fields: code 20
    {R"({"op":"get","path":["M","discreteFields","DF-1"]})", "Given discrete field does not exist.", "PrimException",
     R"(["M","discreteFields"])", "DF-1"},
    // materials: a slot, a sub-option, an option without sub-options, a list of another kind
    {R"({"op":"create","path":["M","materials","Steel"],"type":"Material","values":{"elastic":{},"density":{}}})",
     nullptr, nullptr, nullptr, nullptr},
    {R"({"op":"get","path":["M","materials","Steel","elastik"]})", "Unknown material option", "CmdException",
     R"(["M","materials","Steel"])", "elastik"},
    {R"({"op":"set","path":["M","materials","Steel"],"values":{"plastik":null}})", "Unknown material option",
     "CmdException", R"(["M","materials","Steel"])", "plastik"},
    {R"({"op":"get","path":["M","materials","Steel","elastic","failStres"]})", "Unknown material option name for elastic",
     "CmdException", R"(["M","materials","Steel","elastic"])", "failStres"},
    {R"({"op":"get","path":["M","materials","Steel","density","anything"]})", "Material option has no suboptions",
     "CmdException", R"(["M","materials","Steel","density"])", "anything"},
    {R"({"op":"get","path":["M","materials","Steel","elastic","uniaxialTests"]})",
     "uniaxial tests exists only for Mullins Effect object.", "CmdException", R"(["M","materials","Steel","elastic"])",
     "uniaxialTests"},
    // connector behaviors: a member of other kinds of option
    {R"({"op":"create","path":["M","connectorSections","S-1"],"type":"ConnectorSection","values":{"behaviorOptions":[{"type":"ConnectorLock"}]}})",
     nullptr, nullptr, nullptr, nullptr},
    {R"({"op":"get","path":["M","connectorSections","S-1","behaviorOptions",0,"options"]})", kConnectorOptions,
     "CmdException", R"(["M","connectorSections","S-1","behaviorOptions","0"])", "options"},
    {R"({"op":"get","path":["M","connectorSections","S-1","behaviorOptions",0,"initiationPotentials"]})",
     "InitiationPotentials exists only for ConnectorDamage object.", "CmdException",
     R"(["M","connectorSections","S-1","behaviorOptions","0"])", "initiationPotentials"},
    {R"({"op":"get","path":["M","connectorSections","S-1","behaviorOptions",0,"kinematicOptions"]})",
     "kinematicOptions exists only for the ConnectorPlasticity object.", "CmdException",
     R"(["M","connectorSections","S-1","behaviorOptions","0"])", "kinematicOptions"},
    // a name no module knows keeps the command layer's own refusal
    {R"({"op":"get","path":["M","constraints","T-1","nothing"]})",
     "Tie has no member \"nothing\"; its members are ", "CmdException", R"(["M","constraints","T-1"])", "nothing"},
};

TEST(ModuleRefusals, ReachAScriptLetterForLetterWithTheirContext) {
  const fs::path dir = qmx_TempDir("ModuleRefusals");
  const fs::path script = dir / "refusals.jsonl", out = dir / "out";
  {
    std::ofstream s(script);
    for (const auto& c : kRefusalCases) s << c.line << "\n";
  }
  const std::string cmd = "'" + std::string(ODBATTR_EXE) + "' run '" + script.string() + "' > '" + out.string() + "'";
  EXPECT_NE(std::system(cmd.c_str()), 0);  // some commands failed
  std::ifstream in(out);
  std::vector<RefusalJson> results;
  for (std::string l; std::getline(in, l);) results.push_back(RefusalJson::parse(l));
  ASSERT_EQ(results.size(), std::size(kRefusalCases));
  for (std::size_t i = 0; i < results.size(); ++i) {
    const RefusalCase& c = kRefusalCases[i];
    const RefusalJson& r = results[i];
    SCOPED_TRACE(c.line);
    EXPECT_EQ(r["line"], i + 1);
    if (!c.message) {
      EXPECT_TRUE(r["ok"].get<bool>()) << r.dump();
      continue;
    }
    ASSERT_FALSE(r["ok"].get<bool>());
    const RefusalJson& e = r["error"];
    const std::string message = e["message"];
    if (std::string(c.message).ends_with("are ")) EXPECT_EQ(message.rfind(c.message, 0), 0u) << message;
    else EXPECT_EQ(message, c.message);
    EXPECT_EQ(e["kind"], c.kind);
    EXPECT_EQ(e["path"], RefusalJson::parse(c.path));
    EXPECT_EQ(e["member"], c.member);
    EXPECT_TRUE(e.contains("candidates")) << e.dump();
  }
  // The candidates are the names valid where the path stopped: the constraints there are.
  EXPECT_EQ(results[3]["error"]["candidates"], RefusalJson::parse(R"(["T-1"])"));
  EXPECT_EQ(results[1]["error"]["candidates"], RefusalJson::array());
}

}  // namespace
