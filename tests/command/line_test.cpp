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
      {R"({"op":"get","path":["M"],"x":[{"a":1},{"b":{"c":1,"c":2}}]})",
       R"(The command gives the key "c" twice in one object; a key may appear once)"},
      {R"({"op":"get",)",
       "The command is not valid JSON: [json.exception.parse_error.101] parse error at line 1, column 13: syntax "
       "error while parsing object key - unexpected end of input; expected string literal"},
      {R"({"op":"get","path":[1e400 x]})",
       "The command holds a number beyond the range of a double: [json.exception.out_of_range.406] number overflow "
       "parsing '1e400'"},
      {R"({"op":"get"} x)",
       "The command is not valid JSON: [json.exception.parse_error.101] parse error at line 1, column 14: syntax "
       "error while parsing value - invalid literal; last read: '\"get\"} x'; expected end of input"},
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

TEST(CommandParse, AValidLineReadsAsTheJsonLibraryReadsIt) {
  // Keys keep their order; the same key may appear in sibling and nested objects; numbers keep
  // their kind (signed, unsigned, floating, negative zero); strings keep their escapes' meaning.
  const char* const lines[] = {
      R"({"op":"get","path":["M"]})",
      R"({"b":1,"a":2,"c":{"b":3,"a":{"b":4}},"d":[{"a":1},{"a":2},[],{}]})",
      R"({"i":-3,"u":18446744073709551615,"f":0.5,"z":-0.0,"e":1e308,"t":true,"n":null})",
      R"({"s":"\u00e9\ud83d\ude00\n\"","k\u0041":[[[1]]]})",
      R"(  [ 1 , "x" , { } ]  )",
      R"("just a string")",
      R"(42)",
  };
  for (const char* line : lines) {
    SCOPED_TRACE(line);
    const cmd_Json ours = cmd_ParseCommand(line);
    const cmd_Json plain = cmd_Json::parse(line);
    EXPECT_EQ(ours, plain);
    EXPECT_EQ(ours.dump(), plain.dump());  // the same order and the same number kinds
  }
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
