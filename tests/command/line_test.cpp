// Whatever is wrong with one line of a script is that line's error: the session goes on.
#include <gtest/gtest.h>

#include <string>

#include <nlohmann/json.hpp>

#include "command/cmd_Line.h"
#include "kad/kadC_AdptMeshCtrlCont.h"
#include "tests/command/cmdT_Holder.h"
#include "tests/command/cmd_test_util.h"
#include "tests/support/qmx_test.h"

namespace {

class LineTest : public ::testing::Test {
 protected:
  void SetUp() override {
    cmdT_Register();
    cmdT_Ok(s, R"({"op":"create","path":["M"]})");
    cmdT_Ok(s, R"({"op":"create","path":["M","adaptiveMeshControls","C-1"],"type":"AdaptiveMeshControl"})");
  }
  cmd_Session s;
};

std::string Nested(std::size_t depth) { return std::string(depth, '[') + std::string(depth, ']'); }

TEST_F(LineTest, EachBadLineIsItsOwnErrorAndTheSessionGoesOn) {
  struct Case {
    std::string line;
    std::string message;
  };
  const std::string set = R"({"op":"set","path":["M","adaptiveMeshControls","C-1"],"values":)";
  const Case cases[] = {
      {set + R"({"curvatureRefinement":1e400}})",
       "The command holds a number beyond the range of a double: [json.exception.out_of_range.406] number overflow "
       "parsing '1e400'"},
      {set + R"({"curvatureRefinement":-1e400}})",
       "The command holds a number beyond the range of a double: [json.exception.out_of_range.406] number overflow "
       "parsing '-1e400'"},
      {"{\"op\":\"get\",\"path\":[\"M\xff\"]}",
       "The command is not valid UTF-8: the byte 0xFF at column 23 does not belong to a UTF-8 character"},
      {"{\"op\":\"get\",\"path\":[\"\xc0\xaf\"]}",  // an overlong "/"
       "The command is not valid UTF-8: the byte 0xC0 at column 22 does not belong to a UTF-8 character"},
      {"{\"op\":\"get\",\"path\":[\"\xed\xa0\x80\"]}",  // a surrogate
       "The command is not valid UTF-8: the byte 0xED at column 22 does not belong to a UTF-8 character"},
      {"{\"op\":\"get\",\"path\":[\"\xe2\x82\"]}",  // cut short
       "The command is not valid UTF-8: the byte 0xE2 at column 22 does not belong to a UTF-8 character"},
      {"\xff{\"op\":\"get\",\"path\":[]}",
       "The command is not valid UTF-8: the byte 0xFF at column 1 does not belong to a UTF-8 character"},
      {Nested(100000), "The command nests arrays and objects more than 64 levels deep (column 65)"},
      {R"({"op":"get","path":["M"],"x":)" + Nested(64) + "}",
       "The command nests arrays and objects more than 64 levels deep (column 93)"},
      {R"({"op":"get","op":"delete","path":["M"]})",
       R"(The command gives the key "op" twice in one object; a key may appear once)"},
      {set + R"({"curvatureRefinement":2,"curvatureRefinement":3}})",
       R"(The command gives the key "curvatureRefinement" twice in one object; a key may appear once)"},
      {set + R"({"remapping":"FIRST_ORDER_ADVECTION\u0000X"}})",
       R"(The command holds a string with a NUL character (\u0000), which no name, key or value may hold: )"
       R"("FIRST_ORDER_ADVECTION\u0000X")"},
      {set + R"({"remap\u0000ping":"FIRST_ORDER_ADVECTION"}})",
       R"(The command holds a key with a NUL character (\u0000), which no name, key or value may hold: )"
       R"("remap\u0000ping")"},
      {R"({"op":"save","file":"x.db\u0000.txt"})",
       R"(The command holds a string with a NUL character (\u0000), which no name, key or value may hold: )"
       R"("x.db\u0000.txt")"},
      {R"({"op":"frobnicate","path":["M"]})",
       R"(Unknown op "frobnicate"; the ops are create, set, get, list, delete, validate, save, open, undo, redo, begin, commit, rollback, transaction)"},
  };
  const ddr_Database before = s.Database();
  std::size_t number = 10;
  for (const auto& c : cases) {
    SCOPED_TRACE(c.message);
    const cmd_Json r = s.ExecuteLine(c.line, ++number);
    EXPECT_EQ(r["line"], number);
    EXPECT_EQ(r["ok"], false);
    EXPECT_EQ(r["error"]["kind"], "CmdException");
    EXPECT_EQ(r["error"]["message"], c.message);
    EXPECT_NO_THROW((void)r.dump());  // every answer can be printed
    EXPECT_TRUE(s.Database() == before);
  }
  EXPECT_FALSE(std::filesystem::exists("x.db"));
  // The line after them all runs.
  cmdT_Ok(s, R"({"op":"set","path":["M","adaptiveMeshControls","C-1"],"values":{"curvatureRefinement":2}})");
  EXPECT_EQ(s.Failed(), std::size(cases));
}

TEST_F(LineTest, NestingUpToTheBoundIsParsed) {
  // 64 levels in all: the object and 63 arrays; refused for the key, not for the depth.
  const cmd_Json e = cmdT_Fails(s, R"({"op":"get","path":["M"],"x":)" + Nested(63) + "}");
  EXPECT_EQ(e["message"], R"(The command "get" takes no "x"; it takes op, path)");
}

TEST_F(LineTest, ACommandBuiltByTheCallerIsCheckedToo) {
  cmd_Json c = cmd_Json::parse(R"({"op":"get","path":["M"]})");
  c["path"][0] = std::string("M\xfe", 2);
  cmd_Json r = s.Execute(c);
  EXPECT_EQ(r["error"]["message"], "The command holds a string that is not valid UTF-8 (byte 0xFE at offset 1)");
  c["path"][0] = std::string("M\0", 2);
  r = s.Execute(c, 3);
  EXPECT_EQ(r["line"], 3);
  EXPECT_EQ(r["error"]["message"],
            R"(The command holds a string with a NUL character (\u0000), which no name, key or value may hold: "M\u0000")");
  cmd_Json deep = cmd_Json::array();
  for (int i = 0; i < 70; ++i) deep = cmd_Json::array({deep});
  c = cmd_Json::parse(R"({"op":"get","path":["M"]})");
  c["x"] = deep;
  EXPECT_EQ(s.Execute(c)["error"]["message"], "The command nests arrays and objects more than 64 levels deep");
}

TEST_F(LineTest, EveryAnswerCarriesItsLineFirst) {
  const cmd_Json ok = s.ExecuteLine(R"({"op":"list","path":["M","adaptiveMeshControls"]})", 4);
  EXPECT_EQ(ok.dump(), R"({"line":4,"ok":true,"result":["C-1"]})");
  const cmd_Json bad = s.ExecuteLine(R"({"op":"get",)", 5);
  EXPECT_EQ(bad.begin().key(), "line");
  EXPECT_EQ(bad["line"], 5);
  // Without a line number (a command given directly) there is none.
  EXPECT_FALSE(s.ExecuteLine(R"({"op":"list","path":[]})").contains("line"));
}

}  // namespace
