// The odbattr tool, run as a program: its output lines, exit codes, the files it writes, database
// targets that are not plain files, its version and upgrade (the schema of the script format is
// checked against every example script by tests/python/test_schema.py). What each bad line says is checked where the command
// layer reads lines; here one script shows the tool reporting them.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <regex>
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
  std::vector<Json> Results() const {
    std::vector<Json> r;
    std::istringstream in(out);
    for (std::string l; std::getline(in, l);) r.push_back(Json::parse(l));
    return r;
  }
};

std::string Slurp(const fs::path& p) {
  std::ifstream in(p, std::ios::binary);
  std::stringstream s;
  s << in.rdbuf();
  return s.str();
}

void Write(const fs::path& p, const std::string& text) { std::ofstream(p, std::ios::binary) << text; }

class ToolLines : public ::testing::Test {
 protected:
  void SetUp() override { dir = qmx_TempDir(::testing::UnitTest::GetInstance()->current_test_info()->name()); }
  // Runs the tool with the arguments (already quoted for the shell) from `cwd`.
  Outcome Tool(const std::string& args, const fs::path& cwd = {}) {
    const fs::path out = dir / "stdout", err = dir / "stderr";
    const std::string cmd = (cwd.empty() ? "" : "cd '" + cwd.string() + "' && ") + "'" + ODBATTR_EXE + "' " + args +
                            " > '" + out.string() + "' 2> '" + err.string() + "'";
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

TEST_F(ToolLines, RunReportsEachCommandAndSavesWhatSucceeded) {
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
  const Outcome none = Tool("dump " + Q(db) + " Model-1/adaptiveMeshControls/C-9");
  EXPECT_EQ(none.code, 1);
  EXPECT_EQ(none.err, "odbattr: There is no \"C-9\" in adaptiveMeshControls\n");
  Write(dir / "more.jsonl", R"({"op":"set","path":["Model-1","adaptiveMeshControls","C-1","remapping"],"value":0})" "\n");
  EXPECT_EQ(Tool("run --db " + Q(db) + " " + Q(dir / "more.jsonl")).code, 0);
  EXPECT_EQ(Json::parse(Tool("dump " + Q(db) + R"( '["Model-1","adaptiveMeshControls","C-1","remapping"]')").out),
            "FIRST_ORDER_ADVECTION");
}

TEST_F(ToolLines, RunValidateNamesTheMemberWhoseObjectFailed) {
  // A material failing in its elastic option, and a profile failing a rule of its own.
  Write(dir / "script.jsonl", R"({"op":"create","path":["M"]}
{"op":"create","path":["M","materials","Steel"],"type":"Material","values":{"elastic":{"table":[[0,0]]}}}
{"op":"create","path":["M","profiles","Rod"],"type":"CircularProfile","values":{"r":-1}}
{"op":"validate","path":["M"]}
)");
  const Outcome r = Tool("run " + Q(dir / "script.jsonl"));
  EXPECT_EQ(r.code, 1) << r.err;
  const Json e = r.Results().back()["error"];
  const Json zeroRow = {{"kind", "PrimException"},
                        {"message", "Tabular data for at least one option or suboption\nhas either blank or zero valued row(s)."},
                        {"file", "QMXOdbKmaC.m/src/kmaC_assert"}, {"line", 263}, {"path", {"M", "materials", "Steel"}},
                        {"member", "elastic"}};
  const Json radius = {{"kind", "PrimException"}, {"message", "The radius must be greater than zero."},
                       {"file", "QMXOdbKbpC.m/src/kbpC_assert"}, {"line", 64}, {"path", {"M", "profiles", "Rod"}}};
  ASSERT_EQ(e["failures"].size(), 2u) << e.dump();
  const bool materialFirst = e["failures"][0]["path"][1] == "materials";
  EXPECT_EQ(e["failures"][materialFirst ? 0 : 1], zeroRow);
  EXPECT_EQ(e["failures"][materialFirst ? 1 : 0], radius);  // a rule of the object itself: no member
  EXPECT_EQ(e.value("member", Json()), materialFirst ? Json("elastic") : Json());
}

TEST_F(ToolLines, RunReadsStandardInputAndRefusesAMissingScript) {
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

TEST_F(ToolLines, CheckListsEveryInvalidObjectWithItsPath) {
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

TEST_F(ToolLines, AnUnusableFileIsRefusedAndLeftAlone) {
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

TEST_F(ToolLines, ClassesListTheRegisteredClasses) {
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
TEST_F(ToolLines, TheExampleBuildsSavesAndChecks) {
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

TEST_F(ToolLines, TargetsThatAreNotRegularFilesAreRefusedAndLinksAreWrittenThrough) {
  Write(dir / "script.jsonl", "{\"op\":\"create\",\"path\":[\"M\"]}\n");
  const fs::path fifo = dir / "pipe.db";
  ASSERT_EQ(::mkfifo(fifo.c_str(), 0600), 0);
  const Outcome r = Tool("run --db " + Q(fifo) + " " + Q(dir / "script.jsonl"));
  EXPECT_EQ(r.code, 2);
  EXPECT_EQ(r.err, "odbattr: cannot use \"" + fifo.string() + "\" as the database: it is a FIFO, not a regular file\n");
  EXPECT_TRUE(r.out.empty());  // nothing ran
  EXPECT_TRUE(fs::is_fifo(fifo));
  const Outcome nodir = Tool("run --db " + Q(dir / "missing" / "m.db") + " " + Q(dir / "script.jsonl"));
  EXPECT_EQ(nodir.code, 2);
  EXPECT_EQ(nodir.err, "odbattr: cannot use \"" + (dir / "missing" / "m.db").string() + "\" as the database: the directory \"" +
                           (dir / "missing").string() + "\" does not exist\n");
  EXPECT_TRUE(nodir.out.empty());
  // A directory that takes no new file is found before the script runs, not by the save after it.
  const Outcome readOnly = Tool("run --db /proc/self/m.db " + Q(dir / "script.jsonl"));
  EXPECT_EQ(readOnly.code, 2);
  const std::string refused = "odbattr: cannot use \"/proc/self/m.db\" as the database: the directory \"/proc/self\" cannot be written (";
  EXPECT_EQ(readOnly.err.substr(0, refused.size()), refused) << readOnly.err;
  EXPECT_TRUE(readOnly.out.empty());

  // save in a script: the line fails, the others run
  Write(dir / "save.jsonl", "{\"op\":\"create\",\"path\":[\"M\"]}\n{\"op\":\"save\",\"file\":\"" + fifo.string() +
                                "\"}\n{\"op\":\"save\",\"file\":\"/dev/null\"}\n{\"op\":\"list\",\"path\":[]}\n");
  const Outcome s = Tool("run " + Q(dir / "save.jsonl"));
  EXPECT_EQ(s.code, 1);
  const std::vector<Json> results = s.Results();
  ASSERT_EQ(results.size(), 4u);
  EXPECT_EQ(results[1]["error"]["message"],
            "Cannot save the model database \"" + fifo.string() + "\": it is a FIFO, not a regular file");
  EXPECT_EQ(results[2]["error"]["message"], "Cannot save the model database \"/dev/null\": it is a device, not a regular file");
  EXPECT_EQ(results[3]["result"], Json::parse(R"(["M"])"));
  EXPECT_TRUE(fs::is_fifo(fifo));
  EXPECT_TRUE(fs::is_character_file("/dev/null"));

  // a symbolic link: its target is replaced, the link stays, and both the tool and the command say so
  const fs::path target = dir / "real.db", link = dir / "link.db";
  ASSERT_EQ(Tool("run --db " + Q(target) + " " + Q(dir / "script.jsonl")).code, 0);
  fs::create_symlink("real.db", link);
  Write(dir / "more.jsonl", "{\"op\":\"create\",\"path\":[\"N\"]}\n{\"op\":\"save\",\"file\":\"" + link.string() + "\"}\n");
  const Outcome l = Tool("run --db " + Q(link) + " " + Q(dir / "more.jsonl"));
  EXPECT_EQ(l.code, 0) << l.err;
  EXPECT_EQ(l.err, "odbattr: " + link.string() + " is a symbolic link; saved " + target.string() + ", which it leads to\n");
  EXPECT_EQ(l.Results()[1]["result"],
            Json({{"file", link.string()}, {"models", 2}, {"target", target.string()}}));
  EXPECT_TRUE(fs::is_symlink(link));
  EXPECT_EQ(Json::parse(Tool("dump " + Q(target)).out).size(), 2u);
}

TEST_F(ToolLines, VersionAndUpgradeOfACurrentFile) {
  const Outcome v = Tool("--version");
  EXPECT_EQ(v.code, 0);
  EXPECT_TRUE(std::regex_match(v.out, std::regex("odbattr [0-9]+\\.[0-9]+\\.[0-9]+ \\(database version [0-9]+\\)\n")))
      << v.out;
  const std::string version = std::regex_replace(v.out, std::regex(".*database version ([0-9]+)\\)\n"), "$1");

  Write(dir / "script.jsonl", "{\"op\":\"create\",\"path\":[\"M\"]}\n");
  const fs::path in = dir / "in.db", out = dir / "out.db";
  ASSERT_EQ(Tool("run --db " + Q(in) + " " + Q(dir / "script.jsonl")).code, 0);
  const std::string bytes = Slurp(in);
  const Outcome u = Tool("upgrade " + Q(in) + " " + Q(out));
  EXPECT_EQ(u.code, 0) << u.err;
  EXPECT_EQ(u.out, in.string() + " is already at database version " + version + "; written unchanged as " +
                       out.string() + "\n");
  EXPECT_EQ(Tool("check " + Q(out)).code, 0);
  EXPECT_EQ(Json::parse(Tool("dump " + Q(out)).out), Json::parse(Tool("dump " + Q(in)).out));

  // IN as OUT, by the same name, another spelling or a link: refused, IN untouched
  fs::create_symlink("in.db", dir / "alias.db");
  for (const std::string& same : std::vector<std::string>{Q(in), Q(dir / "." / "in.db"), Q(dir / "alias.db")}) {
    SCOPED_TRACE(same);
    const Outcome r = Tool("upgrade " + Q(in) + " " + same);
    EXPECT_EQ(r.code, 2);
    EXPECT_NE(r.err.find("IN and OUT are the same file"), std::string::npos) << r.err;
    EXPECT_TRUE(r.out.empty());
  }
  EXPECT_EQ(Slurp(in), bytes);
}

}  // namespace
