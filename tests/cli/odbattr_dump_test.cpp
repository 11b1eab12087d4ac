// `odbattr dump`: one line per object by default, indented with --pretty, the same JSON either
// way, and never more than twice the size of the database file it prints.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include <nlohmann/json.hpp>

#include "tests/support/qmx_test.h"

namespace {

namespace fs = std::filesystem;
using DumpJson = nlohmann::ordered_json;

std::string DumpSlurp(const fs::path& p) {
  std::ifstream in(p, std::ios::binary);
  std::stringstream s;
  s << in.rdbuf();
  return s.str();
}

// Runs the tool with the arguments (already quoted for the shell); returns its exit code and
// leaves standard output in `out`.
int DumpTool(const std::string& args, const fs::path& out) {
  const std::string cmd = "'" + std::string(ODBATTR_EXE) + "' " + args + " > '" + out.string() + "' 2>&1";
  const int status = std::system(cmd.c_str());
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

// A model of realistic objects in bulk: materials with elastic and plastic tables, tabular
// amplitudes with their histories, adaptive mesh controls with every member set.
void WriteBulkModel(const fs::path& p, int n) {
  std::ofstream s(p);
  s << R"({"op":"create","path":["Model-1"]})" << '\n';
  for (int i = 0; i < n; ++i) {
    const std::string m = "Steel-" + std::to_string(i);
    s << R"({"op":"create","path":["Model-1","materials",")" << m
      << R"("],"type":"Material","values":{"description":"Structural steel, batch )" << i << R"("}})" << '\n';
    s << R"({"op":"set","path":["Model-1","materials",")" << m
      << R"(","elastic"],"type":"Elastic","values":{"temperatureDependency":true,"table":[)";
    for (int r = 0; r < 8; ++r) s << (r ? "," : "") << '[' << 210000 - 1500 * r << ",0.3," << 20 + 50 * r << ']';
    s << "]}}\n";
    s << R"({"op":"set","path":["Model-1","materials",")" << m << R"(","plastic"],"type":"Plastic","values":{"table":[)";
    for (int r = 0; r < 12; ++r) s << (r ? "," : "") << '[' << 355 + 12.5 * r << ',' << 0.0125 * r << ']';
    s << "]}}\n";
    s << R"({"op":"create","path":["Model-1","amplitudes","History-)" << i
      << R"("],"type":"TabularAmplitude","values":{"data":[)";
    for (int r = 0; r < 40; ++r) s << (r ? "," : "") << '[' << 0.025 * r << ',' << (r % 7) * 0.125 << ']';
    s << "]}}\n";
    s << R"({"op":"create","path":["Model-1","adaptiveMeshControls","Ale-)" << i
      << R"("],"type":"AdaptiveMeshControl","values":{"initialFeatureAngle":25,"meshConstraintAngle":45.5}})" << '\n';
  }
}

class Dump : public ::testing::Test {
 protected:
  void SetUp() override { dir = qmx_TempDir(::testing::UnitTest::GetInstance()->current_test_info()->name()); }
  std::string Q(const fs::path& p) { return "'" + p.string() + "'"; }
  fs::path dir;
};

TEST_F(Dump, OneLinePerObjectAtMostTwiceTheFile) {
  const int n = 400;
  WriteBulkModel(dir / "bulk.jsonl", n);
  const fs::path db = dir / "bulk.db";
  ASSERT_EQ(DumpTool("run --db " + Q(db) + " " + Q(dir / "bulk.jsonl"), dir / "run.out"), 0)
      << DumpSlurp(dir / "run.out");
  ASSERT_EQ(DumpTool("dump " + Q(db), dir / "compact.json"), 0);
  ASSERT_EQ(DumpTool("dump --pretty " + Q(db), dir / "pretty.json"), 0);
  const std::string compact = DumpSlurp(dir / "compact.json"), pretty = DumpSlurp(dir / "pretty.json");

  EXPECT_LE(compact.size(), 2 * fs::file_size(db)) << compact.size() << " bytes of dump, " << fs::file_size(db)
                                                   << " bytes of file";
  // the same document either way
  EXPECT_EQ(DumpJson::parse(compact), DumpJson::parse(pretty));
  EXPECT_GT(pretty.size(), compact.size());

  // one line per object: the database, the model and each repository open onto lines; every
  // element sits whole on a line of its own
  std::istringstream lines(compact);
  std::size_t count = 0, elements = 0;
  for (std::string line; std::getline(lines, line);) {
    ++count;
    if (line.find("\"Steel-") != std::string::npos || line.find("\"History-") != std::string::npos ||
        line.find("\"Ale-") != std::string::npos) {
      ++elements;
      const std::size_t colon = line.find("\":");
      ASSERT_NE(colon, std::string::npos) << line;
      std::string value = line.substr(colon + 2);
      if (!value.empty() && value.back() == ',') value.pop_back();
      EXPECT_TRUE(DumpJson::parse(value).is_object()) << line;  // the whole element on its line
    }
  }
  EXPECT_EQ(elements, static_cast<std::size_t>(3 * n));
  EXPECT_LT(count, static_cast<std::size_t>(3 * n + 100));
}

TEST_F(Dump, APathPrintsWhatItNamesCompactOrPretty) {
  std::ofstream(dir / "one.jsonl") << R"({"op":"create","path":["M"]})" "\n"
                                   << R"({"op":"create","path":["M","adaptiveMeshControls","C"],"type":"AdaptiveMeshControl"})" "\n";
  const fs::path db = dir / "one.db";
  ASSERT_EQ(DumpTool("run --db " + Q(db) + " " + Q(dir / "one.jsonl"), dir / "run.out"), 0);
  ASSERT_EQ(DumpTool("dump " + Q(db) + " M/adaptiveMeshControls/C", dir / "c.json"), 0);
  const std::string c = DumpSlurp(dir / "c.json");
  EXPECT_EQ(std::count(c.begin(), c.end(), '\n'), 1) << c;  // one object, one line
  const DumpJson control = DumpJson::parse(c);
  EXPECT_EQ(control["meshConstraintAngle"], 60.0);
  ASSERT_EQ(DumpTool("dump " + Q(db) + " M/adaptiveMeshControls", dir / "repo.json"), 0);
  EXPECT_EQ(DumpSlurp(dir / "repo.json"), "{\n \"C\":" + control.dump() + "\n}\n");
  ASSERT_EQ(DumpTool("dump --pretty " + Q(db) + " M/adaptiveMeshControls/C", dir / "p.json"), 0);
  EXPECT_EQ(DumpSlurp(dir / "p.json"), control.dump(2) + "\n");
  ASSERT_EQ(DumpTool("dump " + Q(db) + " M/adaptiveMeshControls/C/remapping", dir / "v.json"), 0);
  EXPECT_EQ(DumpSlurp(dir / "v.json"), "\"SECOND_ORDER_ADVECTION\"\n");
}

}  // namespace
