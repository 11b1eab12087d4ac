// Sentinels as users write them: a member that may hold "ALL" (or another literal) reads back as
// the literal and takes it or a number; an unspecified double reads back as null and takes null;
// the stored largest values never reach a script, before or after a trip through the file.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "tests/support/qmx_test.h"

namespace {

using SentinelJson = nlohmann::ordered_json;

struct SentinelCase {
  std::string line;
  const char* result;  // the expected result (JSON), or null for a refusal
  const char* refusal = nullptr;  // the start of the refusal's message
};

TEST(Sentinels, ReadAndWrittenAsLiteralsAndNull) {
  const std::filesystem::path dir = qmx_TempDir("Sentinels");
  const std::string db = (dir / "s.db").string();
  const std::string lock = R"(["M","connectorSections","S-1","behaviorOptions",0)";
  const std::string fastener = R"(["M","engineeringFeatures","fasteners","F-1")";
  const std::vector<SentinelCase> cases = {
      {R"({"op":"create","path":["M"]})", "null"},
      {R"({"op":"create","path":["M","connectorSections","S-1"],"type":"ConnectorSection","values":{"behaviorOptions":[{"type":"ConnectorLock"}]}})",
       "null"},
      {R"({"op":"get","path":)" + lock + R"(,"lockingComponent"]})", R"("ALL")"},
      {R"({"op":"get","path":)" + lock + R"(,"minMotion"]})", "null"},
      {R"({"op":"set","path":)" + lock + R"(,"lockingComponent"],"value":3})", "null"},
      {R"({"op":"get","path":)" + lock + R"(,"lockingComponent"]})", "3"},
      {R"({"op":"set","path":)" + lock + R"(],"values":{"lockingComponent":"ALL","minMotion":0.5,"maxForce":1.7976931348623157e308}})",
       "null"},
      {R"({"op":"get","path":)" + lock + R"(]})",
       R"({"type":"ConnectorLock","components":[],"lockingComponent":"ALL","minMotion":0.5,"maxMotion":null,"minForce":null,"maxForce":null})"},
      {R"({"op":"set","path":)" + lock + R"(,"minMotion"],"value":null})", "null"},
      {R"({"op":"get","path":)" + lock + R"(,"minMotion"]})", "null"},
      {R"({"op":"set","path":)" + lock + R"(,"lockingComponent"],"value":"all"})", nullptr,
       "omu_PrimEnum(const cow_String&) - str not allowed: all  Permissible: "},
      {R"({"op":"set","path":)" + lock + R"(,"lockingComponent"],"value":null})", nullptr,
       "The member \"lockingComponent\" of ConnectorLock takes an integer (32 bits) or \"ALL\", not null"},
      {R"({"op":"set","path":)" + lock + R"(,"minMotion"],"value":"ALL"})", nullptr,
       "The member \"minMotion\" of ConnectorLock takes a number or null, not the string \"ALL\""},
      {R"({"op":"create","path":)" + fastener + R"(],"type":"PointFastener"})", "null"},
      {R"({"op":"get","path":)" + fastener + R"(,"maximumLayers"]})", R"("ALL")"},
      {R"({"op":"set","path":)" + fastener + R"(,"maximumLayers"],"value":4})", "null"},
      {R"({"op":"get","path":)" + fastener + R"(,"searchRadius"]})", "null"},
      {R"({"op":"save","file":")" + db + R"("})", nullptr},
      {R"({"op":"open","file":")" + db + R"("})", nullptr},
      {R"({"op":"get","path":)" + lock + R"(,"lockingComponent"]})", R"("ALL")"},
      {R"({"op":"get","path":)" + lock + R"(,"maxForce"]})", "null"},
      {R"({"op":"get","path":)" + fastener + R"(,"maximumLayers"]})", "4"},
  };
  const std::string script = (dir / "s.jsonl").string(), out = (dir / "out").string();
  {
    std::ofstream s(script);
    for (const auto& c : cases) s << c.line << "\n";
  }
  EXPECT_NE(std::system(("'" + std::string(ODBATTR_EXE) + "' run '" + script + "' > '" + out + "'").c_str()), 0);
  std::ifstream in(out);
  std::vector<SentinelJson> results;
  for (std::string l; std::getline(in, l);) results.push_back(SentinelJson::parse(l));
  ASSERT_EQ(results.size(), cases.size());
  for (std::size_t i = 0; i < cases.size(); ++i) {
    SCOPED_TRACE(cases[i].line);
    const SentinelJson& r = results[i];
    if (cases[i].refusal) {
      ASSERT_FALSE(r["ok"].get<bool>());
      const std::string m = r["error"]["message"];
      EXPECT_EQ(m.rfind(cases[i].refusal, 0), 0u) << m;
      continue;
    }
    ASSERT_TRUE(r["ok"].get<bool>()) << r.dump();
    if (cases[i].result) {
      EXPECT_EQ(r["result"], SentinelJson::parse(cases[i].result));
    }
    EXPECT_EQ(r.dump().find("1.7976931348623157e+308"), std::string::npos);
    EXPECT_EQ(r.dump().find("2147483647"), std::string::npos);
  }
}

}  // namespace
