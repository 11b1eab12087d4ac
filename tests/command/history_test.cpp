// Undo, redo and transactions: every command that changed the database is one step back; a failed
// command leaves no step; a transaction is all of its commands or none.
#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "platform/model/ddr_Model.h"
#include "platform/model/mdl_Repository.h"
#include "tests/command/cmdT_Holder.h"
#include "tests/command/cmd_test_util.h"
#include "tests/support/qmx_test.h"

namespace {

class HistoryTest : public ::testing::Test {
 protected:
  void SetUp() override {
    cmdT_Register();
    cmdT_Ok(s, R"({"op":"create","path":["M"]})");
    cmdT_Ok(s, R"({"op":"create","path":["M","adaptiveMeshControls","C-1"],"type":"AdaptiveMeshControl"})");
  }
  cmd_Session s;
};

// Sequences of commands that change things in different ways; failed commands among them.
const std::vector<std::vector<std::string>> kSequences = {
    {R"({"op":"set","path":["M","adaptiveMeshControls","C-1","meshConstraintAngle"],"value":75})",
     R"({"op":"set","path":["M","adaptiveMeshControls","C-1","meshConstraintAngle"],"value":"x"})",
     R"({"op":"set","path":["M","adaptiveMeshControls","C-1"],"values":{"remapping":"SECOND_ORDER_ADVECTION"}})"},
    {R"({"op":"create","path":["M","adaptiveMeshControls","C-2"],"type":"AdaptiveMeshControl"})",
     R"({"op":"delete","path":["M","adaptiveMeshControls","C-1"]})",
     R"({"op":"delete","path":["M","adaptiveMeshControls","C-1"]})",
     R"({"op":"create","path":["N"]})"},
    {R"({"op":"create","path":["M","holders","H"],"type":"Holder","values":{"label":"a"}})",
     R"({"op":"set","path":["M","holders","H","label"],"value":"b"})",
     R"({"op":"create","path":["M","holders","H","domains","D-1"],"type":"AdaptiveMeshDomain"})",
     R"({"op":"create","path":["M","holders","H","domains","D-1"],"type":"AdaptiveMeshDomain"})",
     R"({"op":"delete","path":["M"]})"},
};

TEST_F(HistoryTest, UndoingEveryCommandGivesTheStartAndRedoingGivesTheEnd) {
  for (const auto& sequence : kSequences) {
    SCOPED_TRACE(sequence.front());
    cmd_Session t;
    cmdT_Ok(t, R"({"op":"create","path":["M"]})");
    cmdT_Ok(t, R"({"op":"create","path":["M","adaptiveMeshControls","C-1"],"type":"AdaptiveMeshControl"})");
    const ddr_Database start = t.Database();
    const std::size_t depth = t.UndoDepth();
    std::size_t changed = 0;
    for (const auto& line : sequence) changed += t.ExecuteLine(line)["ok"].get<bool>() ? 1 : 0;
    ASSERT_LT(changed, sequence.size());  // each sequence holds a failure, which left no step
    EXPECT_EQ(t.UndoDepth(), depth + changed);
    const ddr_Database end = t.Database();
    for (std::size_t i = 0; i < changed; ++i) cmdT_Ok(t, R"({"op":"undo"})");
    EXPECT_TRUE(t.Database() == start);
    for (std::size_t i = 0; i < changed; ++i) cmdT_Ok(t, R"({"op":"redo"})");
    EXPECT_TRUE(t.Database() == end);
    EXPECT_EQ(cmdT_Fails(t, R"({"op":"redo"})")["message"], "There is nothing to redo");
  }
}

// The history holds the database as it was; a change made after an undo changes neither that nor
// what undo brings back, and drops what redo would have redone.
TEST_F(HistoryTest, AStepBackIsSeparateFromTheDatabaseOfToday) {
  const cmd_Json before = cmdT_Ok(s, R"({"op":"get","path":["M"]})");
  cmdT_Ok(s, R"({"op":"set","path":["M","adaptiveMeshControls","C-1","meshConstraintAngle"],"value":75})");
  const cmd_Json after = cmdT_Ok(s, R"({"op":"get","path":["M"]})");
  EXPECT_EQ(cmdT_Ok(s, R"({"op":"undo"})"), cmd_Json::parse(R"({"undo":2,"redo":1})"));
  EXPECT_EQ(cmdT_Ok(s, R"({"op":"get","path":["M"]})"), before);
  cmdT_Ok(s, R"({"op":"set","path":["M","adaptiveMeshControls","C-1","meshConstraintAngle"],"value":12})");
  EXPECT_EQ(cmdT_Fails(s, R"({"op":"redo"})")["message"], "There is nothing to redo");
  cmdT_Ok(s, R"({"op":"undo"})");
  EXPECT_EQ(cmdT_Ok(s, R"({"op":"get","path":["M"]})"), before);
  cmdT_Ok(s, R"({"op":"undo"})");  // the control's creation
  cmdT_Ok(s, R"({"op":"undo"})");  // the model's
  EXPECT_EQ(cmdT_Ok(s, R"({"op":"list","path":[]})"), cmd_Json::array());
  EXPECT_EQ(cmdT_Fails(s, R"({"op":"undo"})")["message"], "There is nothing to undo");
  EXPECT_NE(after, before);
}

TEST_F(HistoryTest, ARolledBackTransactionChangesNothingAndACommittedOneIsOneStep) {
  const ddr_Database start = s.Database();
  const std::size_t depth = s.UndoDepth();
  cmdT_Ok(s, R"({"op":"begin"})");
  cmdT_Ok(s, R"({"op":"create","path":["M","adaptiveMeshControls","C-2"],"type":"AdaptiveMeshControl"})");
  cmdT_Ok(s, R"({"op":"delete","path":["M","adaptiveMeshControls","C-1"]})");
  cmdT_Ok(s, R"({"op":"rollback"})");
  EXPECT_TRUE(s.Database() == start);
  EXPECT_EQ(s.UndoDepth(), depth);

  cmdT_Ok(s, R"({"op":"begin"})");
  cmdT_Ok(s, R"({"op":"create","path":["M","adaptiveMeshControls","C-2"],"type":"AdaptiveMeshControl"})");
  cmdT_Ok(s, R"({"op":"delete","path":["M","adaptiveMeshControls","C-1"]})");
  cmdT_Ok(s, R"({"op":"commit"})");
  EXPECT_EQ(s.UndoDepth(), depth + 1);
  EXPECT_EQ(cmdT_Ok(s, R"({"op":"list","path":["M","adaptiveMeshControls"]})"), cmd_Json::parse(R"(["C-2"])"));
  cmdT_Ok(s, R"({"op":"undo"})");
  EXPECT_TRUE(s.Database() == start);
}

// A transaction whose third command fails leaves the first two undone, in both forms.
TEST_F(HistoryTest, ATransactionWhoseThirdCommandFailsLeavesTheFirstTwoUndone) {
  const ddr_Database start = s.Database();
  const std::size_t depth = s.UndoDepth();
  const cmd_Json e = cmdT_Fails(s, R"({"op":"transaction","commands":[
      {"op":"create","path":["M","adaptiveMeshControls","C-2"],"type":"AdaptiveMeshControl"},
      {"op":"set","path":["M","adaptiveMeshControls","C-1","meshConstraintAngle"],"value":75},
      {"op":"set","path":["M","adaptiveMeshControls","C-1","remapping"],"value":"THIRD_ORDER"},
      {"op":"delete","path":["M","adaptiveMeshControls","C-1"]}]})");
  EXPECT_EQ(e["command"], 2);
  EXPECT_EQ(e["member"], "remapping");
  EXPECT_EQ(e["rolledBack"], true);
  EXPECT_TRUE(s.Database() == start);
  EXPECT_EQ(s.UndoDepth(), depth);

  cmdT_Ok(s, R"({"op":"begin"})");
  cmdT_Ok(s, R"({"op":"create","path":["M","adaptiveMeshControls","C-2"],"type":"AdaptiveMeshControl"})");
  cmdT_Ok(s, R"({"op":"set","path":["M","adaptiveMeshControls","C-1","meshConstraintAngle"],"value":75})");
  EXPECT_EQ(cmdT_Fails(s, R"({"op":"get","path":["M","adaptiveMeshControls","C-9"]})")["rolledBack"], true);
  EXPECT_FALSE(s.InTransaction());
  EXPECT_TRUE(s.Database() == start);
  EXPECT_EQ(cmdT_Fails(s, R"({"op":"commit"})")["message"], "There is no open transaction to commit");
  EXPECT_EQ(s.UndoDepth(), depth);
  // A transaction that succeeds answers each command's result, in order.
  EXPECT_EQ(cmdT_Ok(s, R"({"op":"transaction","commands":[{"op":"list","path":["M","adaptiveMeshControls"]},
      {"op":"create","path":["M","adaptiveMeshControls","C-3"],"type":"AdaptiveMeshControl"}]})"),
            cmd_Json::parse(R"([["C-1"],null])"));
  EXPECT_EQ(s.UndoDepth(), depth + 1);
}

// The history grows with what changed, not with the model: every step shares every element it did
// not change with the others, so across all of them there is one object per element made and one
// per change, however many steps there are.
TEST_F(HistoryTest, TheStepsShareEverythingTheyDidNotChange) {
  constexpr int kElements = 2000, kChanges = 300;
  for (int i = 0; i < kElements; ++i)
    cmdT_Ok(s, R"({"op":"create","path":["M","adaptiveMeshControls","E-)" + std::to_string(i) +
                   R"("],"type":"AdaptiveMeshControl"})");
  for (int i = 0; i < kChanges; ++i)
    cmdT_Ok(s, R"({"op":"set","path":["M","adaptiveMeshControls","E-)" + std::to_string(i * 7 % kElements) +
                   R"(","meshConstraintAngle"],"value":)" + std::to_string(10 + i % 50) + "}");
  std::set<const void*> objects;
  auto collect = [&](const ddr_Database& db) {
    const ddr_Model* m = db.FindModel("M");
    if (!m) return;
    const mdl_Repository* r = m->FindRepository("adaptiveMeshControls");
    for (const auto& key : r->Keys()) objects.insert(r->Find(key));
  };
  collect(s.Database());
  for (const auto& step : s.UndoHistory()) collect(step);
  EXPECT_EQ(s.UndoHistory().size(), 2u + kElements + kChanges);
  EXPECT_EQ(objects.size(), 1u + kElements + kChanges);  // C-1 of SetUp, the elements, the changes
}

TEST_F(HistoryTest, WhatTheHistoryRefuses) {
  const struct {
    std::vector<std::string> before;
    std::string line;
    std::string message;
  } kCases[] = {
      {{}, R"({"op":"rollback"})", "There is no open transaction to rollback"},
      {{R"({"op":"begin"})"}, R"({"op":"begin"})", "A transaction is already open; transactions do not nest"},
      {{R"({"op":"begin"})"}, R"({"op":"undo"})", "undo is not possible inside a transaction; commit or roll it back first"},
      {{}, R"({"op":"transaction","commands":[{"op":"undo"}]})",
       "Command 0 of the transaction is \"undo\", which a transaction cannot hold"},
      {{}, R"({"op":"transaction"})", "A transaction needs \"commands\": an array of commands"},
      {{}, R"({"op":"undo","path":[]})", "The command \"undo\" takes no \"path\"; it takes op"},
  };
  for (const auto& c : kCases) {
    SCOPED_TRACE(c.line);
    cmd_Session t;
    for (const auto& b : c.before) cmdT_Ok(t, b);
    EXPECT_EQ(cmdT_Fails(t, c.line)["message"], c.message);
  }
}

}  // namespace
