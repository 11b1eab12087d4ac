// odbattr check and the advice: warnings printed after the failures with their path, member and
// code; the exit code stays that of validation unless --strict; the example model is advice-clean.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "tests/support/qmx_test.h"

namespace odbattr_advice_test {

namespace fs = std::filesystem;

struct Ran {
  int code;
  std::vector<std::string> lines;
};

Ran Tool(const fs::path& dir, const std::string& args) {
  const fs::path out = dir / "stdout";
  const std::string cmd = "'" + std::string(ODBATTR_EXE) + "' " + args + " > '" + out.string() + "' 2> /dev/null";
  const int status = std::system(cmd.c_str());
  Ran r{WIFEXITED(status) ? WEXITSTATUS(status) : -1, {}};
  std::ifstream in(out);
  for (std::string l; std::getline(in, l);) r.lines.push_back(l);
  return r;
}

std::string Q(const fs::path& p) { return "'" + p.string() + "'"; }

TEST(ToolAdvice, CheckPrintsWarningsAndFailsOnThemOnlyWhenStrict) {
  const fs::path dir = qmx_TempDir("ToolAdviceCheck");
  std::ofstream(dir / "script.jsonl") << R"({"op":"create","path":["Model-1"]}
{"op":"create","path":["Model-1","materials","Steel"],"type":"Material"}
{"op":"set","path":["Model-1","materials","Steel","density"],"type":"Density","values":{"table":[[-7.8e-9]]}}
{"op":"create","path":["Model-1","adaptiveMeshControls","Bad"],"type":"AdaptiveMeshControl","values":{"curvatureRefinement":-1}}
)";
  const fs::path db = dir / "model.db";
  ASSERT_EQ(Tool(dir, "run --db " + Q(db) + " " + Q(dir / "script.jsonl")).code, 0);
  const std::vector<std::string> expected = {
      R"(["Model-1","adaptiveMeshControls","Bad"]: Curvature refinement must be greater than or equal to zero.)",
      R"(["Model-1","materials","Steel","density"] table: warning density-sign: The density in row 1 is -7.8e-09; expected a positive mass density)",
      "2 objects checked, 1 invalid, 1 warning"};
  for (const char* flags : {"", "--strict "}) {
    const Ran r = Tool(dir, std::string("check ") + flags + Q(db));
    EXPECT_EQ(r.code, 1) << flags;
    EXPECT_EQ(r.lines, expected) << flags;
  }
  // Valid but advised: 0, and 1 only when strict.
  std::ofstream(dir / "fix.jsonl") << R"({"op":"delete","path":["Model-1","adaptiveMeshControls","Bad"]}
)";
  ASSERT_EQ(Tool(dir, "run --db " + Q(db) + " " + Q(dir / "fix.jsonl")).code, 0);
  const Ran lenient = Tool(dir, "check " + Q(db));
  EXPECT_EQ(lenient.code, 0);
  EXPECT_EQ(lenient.lines.back(), "1 object checked, 0 invalid, 1 warning");
  EXPECT_EQ(Tool(dir, "check --strict " + Q(db)).code, 1);
}

TEST(ToolAdvice, TheExampleModelIsAdviceClean) {
  const fs::path dir = qmx_TempDir("ToolAdviceExample");
  const fs::path db = dir / "example.db";
  ASSERT_EQ(Tool(dir, "example --dir " + Q(QMX_EXAMPLES_DIR) + " --db " + Q(db)).code, 0);
  const Ran r = Tool(dir, "check --strict " + Q(db));
  EXPECT_EQ(r.code, 0);
  ASSERT_FALSE(r.lines.empty());
  EXPECT_EQ(r.lines.size(), 1u) << r.lines.front();
}

}  // namespace odbattr_advice_test
