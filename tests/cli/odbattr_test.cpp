// The odbattr tool, run as a program: its output lines, exit codes and the files it writes.
#include <gtest/gtest.h>
#include <sys/wait.h>

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
using Json = nlohmann::ordered_json;

struct Outcome {
  int code;
  std::string out;
  std::string err;
  std::vector<std::string> Lines() const {
    std::vector<std::string> lines;
    std::istringstream in(out);
    for (std::string l; std::getline(in, l);) lines.push_back(l);
    return lines;
  }
};

std::string Slurp(const fs::path& p) {
  std::ifstream in(p);
  std::stringstream s;
  s << in.rdbuf();
  return s.str();
}

void Write(const fs::path& p, const std::string& text) { std::ofstream(p) << text; }

class OdbattrTest : public ::testing::Test {
 protected:
  void SetUp() override { dir = qmx_TempDir(::testing::UnitTest::GetInstance()->current_test_info()->name()); }

  // Runs the tool with the arguments (already quoted for the shell) from `cwd`.
  Outcome Tool(const std::string& args, const fs::path& cwd = {}) {
    const fs::path out = dir / "stdout", err = dir / "stderr";
    std::string cmd = (cwd.empty() ? "" : "cd '" + cwd.string() + "' && ") + "'" + ODBATTR_EXE + "' " + args + " > '" +
                      out.string() + "' 2> '" + err.string() + "'";
    const int status = std::system(cmd.c_str());
    return Outcome{WIFEXITED(status) ? WEXITSTATUS(status) : -1, Slurp(out), Slurp(err)};
  }
  std::string Q(const fs::path& p) { return "'" + p.string() + "'"; }

  fs::path dir;
};

const char* kScript = R"(# a control, a refused change, a change that goes through
{"op":"create","path":["Model-1"]}
{"op":"create","path":["Model-1","adaptiveMeshControls","C-1"],"type":"AdaptiveMeshControl"}

{"op":"set","path":["Model-1","adaptiveMeshControls","C-1"],"values":{"initialFeatureAngle":10,"remapping":"First_Order_Advection"}}
{"op":"set","path":["Model-1","adaptiveMeshControls","C-1","transitionFeatureAngle"],"value":20}
{"op":"get","path":["Model-1","adaptiveMeshControls","C-1","initialFeatureAngle"]}
)";

TEST_F(OdbattrTest, RunReportsEachCommandAndSavesWhatSucceeded) {
  Write(dir / "script.jsonl", kScript);
  const fs::path db = dir / "model.db";
  const Outcome r = Tool("run --db " + Q(db) + " " + Q(dir / "script.jsonl"));
  EXPECT_EQ(r.code, 1) << r.err;  // one command failed
  const std::vector<std::string> expected = {
      R"({"line":2,"ok":true,"result":null})",
      R"({"line":3,"ok":true,"result":null})",
      R"({"line":5,"ok":false,"error":{"kind":"CmdException","message":"omu_PrimEnum(const cow_String&) - str not allowed: )"
      R"(First_Order_Advection  Permissible: FIRST_ORDER_ADVECTION, SECOND_ORDER_ADVECTION","file":)"
      R"("QMXAbuTessarUtilities/ProtectedInterfaces/omu_PrimEnum","line":103,)"
      R"("path":["Model-1","adaptiveMeshControls","C-1"],"member":"remapping"}})",
      R"({"line":6,"ok":true,"result":null})",
      R"({"line":7,"ok":true,"result":30.0})",
  };
  EXPECT_EQ(r.Lines(), expected);

  // The file holds what succeeded, and a second run continues from it.
  const Outcome d = Tool("dump " + Q(db) + " Model-1/adaptiveMeshControls/C-1");
  ASSERT_EQ(d.code, 0) << d.err;
  const Json c = Json::parse(d.out);
  EXPECT_EQ(c["initialFeatureAngle"], 30.0);
  EXPECT_EQ(c["transitionFeatureAngle"], 20.0);
  EXPECT_EQ(c["remapping"], "SECOND_ORDER_ADVECTION");
  Write(dir / "more.jsonl", R"({"op":"set","path":["Model-1","adaptiveMeshControls","C-1","remapping"],"value":0})" "\n");
  EXPECT_EQ(Tool("run --db " + Q(db) + " " + Q(dir / "more.jsonl")).code, 0);
  EXPECT_EQ(Json::parse(Tool("dump " + Q(db) + R"( '["Model-1","adaptiveMeshControls","C-1","remapping"]')").out),
            "FIRST_ORDER_ADVECTION");
}

TEST_F(OdbattrTest, RunReadsStandardInputAndRefusesAMissingScript) {
  Write(dir / "script.jsonl", "{\"op\":\"create\",\"path\":[\"M\"]}\n{\"op\":\"list\",\"path\":[]}\n");
  const Outcome r = Tool("run - < " + Q(dir / "script.jsonl"));
  EXPECT_EQ(r.code, 0) << r.err;
  EXPECT_EQ(r.Lines(), (std::vector<std::string>{R"({"line":1,"ok":true,"result":null})",
                                                 R"({"line":2,"ok":true,"result":["M"]})"}));
  const Outcome missing = Tool("run " + Q(dir / "absent.jsonl"));
  EXPECT_EQ(missing.code, 2);
  EXPECT_EQ(missing.err, "odbattr: cannot read the script " + (dir / "absent.jsonl").string() + "\n");
  EXPECT_TRUE(missing.out.empty());
}

TEST_F(OdbattrTest, CheckListsEveryInvalidObjectWithItsPath) {
  Write(dir / "script.jsonl", R"({"op":"create","path":["Model-1"]}
{"op":"create","path":["Model-1","adaptiveMeshControls","Bad-1"],"type":"AdaptiveMeshControl","values":{"meshConstraintAngle":181}}
{"op":"create","path":["Model-1","adaptiveMeshControls","Good"],"type":"AdaptiveMeshControl"}
{"op":"create","path":["Model-1","adaptiveMeshControls","Bad-2"],"type":"AdaptiveMeshControl","values":{"curvatureRefinement":-1}}
)");
  const fs::path db = dir / "model.db";
  ASSERT_EQ(Tool("run --db " + Q(db) + " " + Q(dir / "script.jsonl")).code, 0);
  const Outcome r = Tool("check " + Q(db));
  EXPECT_EQ(r.code, 1);
  EXPECT_EQ(r.Lines(), (std::vector<std::string>{
                           R"(["Model-1","adaptiveMeshControls","Bad-1"]: Mesh constraint angle must be greater than or equal to zero and less than or equal to 180.)",
                           R"(["Model-1","adaptiveMeshControls","Bad-2"]: Curvature refinement must be greater than or equal to zero.)",
                           "3 objects checked, 2 invalid"}));
  EXPECT_TRUE(r.err.empty()) << r.err;  // no progress line: standard error is not a terminal

  Write(dir / "fix.jsonl", R"({"op":"delete","path":["Model-1","adaptiveMeshControls","Bad-1"]}
{"op":"delete","path":["Model-1","adaptiveMeshControls","Bad-2"]}
)");
  ASSERT_EQ(Tool("run --db " + Q(db) + " " + Q(dir / "fix.jsonl")).code, 0);
  const Outcome ok = Tool("check " + Q(db));
  EXPECT_EQ(ok.code, 0);
  EXPECT_EQ(ok.out, "1 object checked, 0 invalid\n");
}

TEST_F(OdbattrTest, AnUnusableFileIsRefusedAndLeftAlone) {
  const fs::path junk = dir / "junk.db";
  Write(junk, "this is not a database");
  for (const char* verb : {"check", "dump"}) {
    SCOPED_TRACE(verb);
    const Outcome r = Tool(std::string(verb) + " " + Q(junk));
    EXPECT_EQ(r.code, 2);
    EXPECT_EQ(r.err.rfind("odbattr: ", 0), 0u) << r.err;
    EXPECT_NE(r.err.find("junk.db"), std::string::npos) << r.err;  // the message names the file
  }
  Write(dir / "script.jsonl", "{\"op\":\"create\",\"path\":[\"M\"]}\n");
  const Outcome run = Tool("run --db " + Q(junk) + " " + Q(dir / "script.jsonl"));
  EXPECT_EQ(run.code, 2);
  EXPECT_TRUE(run.out.empty());  // no command ran
  EXPECT_EQ(Slurp(junk), "this is not a database");
  EXPECT_EQ(Tool("upgrade " + Q(junk) + " " + Q(dir / "out.db")).code, 2);
  EXPECT_FALSE(fs::exists(dir / "out.db"));
}

TEST_F(OdbattrTest, DumpAPathThatNamesNothing) {
  Write(dir / "script.jsonl", "{\"op\":\"create\",\"path\":[\"Model-1\"]}\n");
  const fs::path db = dir / "model.db";
  ASSERT_EQ(Tool("run --db " + Q(db) + " " + Q(dir / "script.jsonl")).code, 0);
  const Outcome r = Tool("dump " + Q(db) + " Model-1/adaptiveMeshControls/C-9");
  EXPECT_EQ(r.code, 1);
  EXPECT_EQ(r.err, "odbattr: There is no \"C-9\" in adaptiveMeshControls\n");
  const Outcome all = Tool("dump " + Q(db));
  EXPECT_EQ(all.code, 0);
  EXPECT_EQ(Json::parse(all.out)["Model-1"]["adaptiveMeshControls"], Json::object());
}

TEST_F(OdbattrTest, UpgradeWritesAFileThatChecks) {
  Write(dir / "script.jsonl", R"({"op":"create","path":["Model-1"]}
{"op":"create","path":["Model-1","adaptiveMeshControls","C-1"],"type":"AdaptiveMeshControl","values":{"smoothingAlgorithm":"STANDARD"}}
)");
  const fs::path in = dir / "in.db", out = dir / "out.db";
  ASSERT_EQ(Tool("run --db " + Q(in) + " " + Q(dir / "script.jsonl")).code, 0);
  const Outcome r = Tool("upgrade " + Q(in) + " " + Q(out));
  EXPECT_EQ(r.code, 0) << r.err;
  EXPECT_EQ(Tool("check " + Q(out)).code, 0);
  EXPECT_EQ(Json::parse(Tool("dump " + Q(out)).out), Json::parse(Tool("dump " + Q(in)).out));
}

TEST_F(OdbattrTest, ClassesListTheRegisteredClasses) {
  const Outcome r = Tool("classes");
  ASSERT_EQ(r.code, 0) << r.err;
  const Json all = Json::parse(r.out);
  const Json* ctrl = nullptr;
  for (const auto& c : all)
    if (c["name"] == "kadC_AdptMeshCtrl") ctrl = &c;
  ASSERT_NE(ctrl, nullptr);
  EXPECT_EQ((*ctrl)["typeId"], 0x02680001);
  EXPECT_EQ((*ctrl)["typeIdHex"], "0x02680001");
  EXPECT_EQ((*ctrl)["version"], 860);
  EXPECT_EQ((*ctrl)["constructor"], "AdaptiveMeshControl");
  ASSERT_EQ((*ctrl)["fields"].size(), 14u);
  EXPECT_EQ((*ctrl)["fields"][0], Json::parse(R"({"number":0,"name":"advection","type":14,"typeName":"enumeration","scriptName":"remapping"})"));
  EXPECT_EQ((*ctrl)["fields"][9]["number"], 12);  // standardVolumetricSmoothingWeight, added at 860
}

// README's main job: the example, from the repository root.
TEST_F(OdbattrTest, TheExampleBuildsSavesAndChecks) {
  const fs::path db = dir / "example.db";
  const Outcome r = Tool("example --db " + Q(db), fs::path(QMX_EXAMPLES_DIR).parent_path());
  EXPECT_EQ(r.code, 0) << r.out << r.err;
  EXPECT_NE(r.out.find("adaptive_mesh.jsonl: 8 commands, 8 succeeded\n"), std::string::npos) << r.out;
  EXPECT_NE(r.out.find("; it reads back equal\n"), std::string::npos) << r.out;
  EXPECT_NE(r.out.find(" invalid\n"), std::string::npos) << r.out;
  EXPECT_NE(r.out.find("adaptiveMeshControls (3)"), std::string::npos) << r.out;
  EXPECT_EQ(Tool("check " + Q(db)).code, 0);

  const Outcome none = Tool("example --dir " + Q(dir) + " --db " + Q(dir / "x.db"));
  EXPECT_EQ(none.code, 2);
  EXPECT_EQ(none.err, "odbattr: there are no example scripts (*.jsonl) in " + dir.string() + "\n");
}

}  // namespace
