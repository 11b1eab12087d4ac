#pragma once
// The command layer: runs commands given as JSON objects on a database of models.
//   {"op":"create","path":["Model-1"]}                                 a model
//   {"op":"create","path":["Model-1","adaptiveMeshControls","C-1"],"type":"AdaptiveMeshControl",
//    "values":{"initialFeatureAngle":45}}                              an element, then its members
//   {"op":"set","path":[...,"C-1"],"values":{"remapping":"FIRST_ORDER_ADVECTION"}}
//   {"op":"set","path":[...,"C-1","meshConstraintAngle"],"value":75}   one member
//   {"op":"set","path":[...,"member"],"type":"Ctor","values":{...}}     a new object in a member
//   {"op":"get","path":[...]}  {"op":"list","path":[...]}  {"op":"validate","path":[...]}
//   {"op":"delete","path":[...]}  {"op":"save","file":"x.db"}  {"op":"open","file":"x.db"}
//   {"op":"save","file":"x.db","overwrite":true}  saves over another process's save of the file
//   {"op":"undo"}  {"op":"redo"}                each undoes or redoes one command that changed something
//   {"op":"begin"} ... {"op":"commit"} / {"op":"rollback"}   a transaction: all of it or nothing
//   {"op":"transaction","commands":[{...},{...}]}            the same in one command
// Each command answers {"line":N,"ok":true,"result":...} or {"line":N,"ok":false,"error":{"kind":...,
// "message":...,"file":...,"line":...,"path":[...],"member":...,"candidates":[...]}}: "line" first is the script line,
// the error's "message", "file" and "line" are the failure as the system raised it, "path" the
// path of the object concerned and "member" the member (or key) that failed, when one did, with
// "candidates" the names that would have been valid there. A failed validate lists every failure
// under "failures", first failure first. A failed command changes nothing: the database as it was
// (an O(1) copy that shares every model) is put back and the change history is cut back to where
// it was. Inside a transaction a failed command also ends the transaction, undoing every command
// of it ("rolledBack": true). Every command that changed the database (create, set, delete,
// open), and every committed transaction, is one entry of the history that undo steps back over.
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "command/cmd_Json.h"
#include "dbfile/dbf_Baseline.h"
#include "dbfile/dbf_Seen.h"
#include "platform/model/ddr_Database.h"

class cmd_Session {
 public:
  cmd_Session() = default;
  explicit cmd_Session(ddr_Database db) : db_(std::move(db)) {}

  const ddr_Database& Database() const noexcept { return db_; }
  ddr_Database& Database() noexcept { return db_; }

  // Runs one command. With a script line number (from 1) the answer carries it as "line".
  cmd_Json Execute(const cmd_Json& command, std::size_t line = 0);
  // One line of JSON. Whatever is wrong with the line (not JSON, not UTF-8, nested too deep, a
  // duplicate key, a number out of range) fails it like a command; nothing is thrown.
  cmd_Json ExecuteLine(std::string_view text, std::size_t line = 0);

  std::size_t Succeeded() const noexcept { return succeeded_; }
  std::size_t Failed() const noexcept { return failed_; }
  // The entries of the history: commands that undo and redo would step over.
  std::size_t UndoDepth() const noexcept { return undo_.size(); }
  std::size_t RedoDepth() const noexcept { return redo_.size(); }
  bool InTransaction() const noexcept { return transaction_.has_value(); }
  // The databases undo would bring back, the next one last.
  const std::vector<ddr_Database>& UndoHistory() const noexcept { return undo_; }

 private:
  cmd_Json Dispatch(const cmd_Json& command);
  cmd_Json Create(const cmd_Json& command);
  cmd_Json Set(const cmd_Json& command);
  cmd_Json Get(const cmd_Json& command);
  cmd_Json List(const cmd_Json& command);
  cmd_Json Delete(const cmd_Json& command);
  cmd_Json Validate(const cmd_Json& command);
  cmd_Json Save(const cmd_Json& command);
  cmd_Json Open(const cmd_Json& command);
  cmd_Json Step(bool undo);
  cmd_Json Bracket(const std::string& op);  // begin, commit, rollback
  cmd_Json Transaction(const cmd_Json& command);

  ddr_Database db_;
  dbf_Seen seen_;  // the files this database read or saved, as it left them
  dbf_Baseline baseline_;  // the file last read or saved, so that saving it again writes what changed
  std::vector<ddr_Database> undo_;  // the database before each entry, the last entry last
  std::vector<ddr_Database> redo_;
  std::optional<ddr_Database> transaction_;  // the database when the open transaction began
  std::size_t succeeded_ = 0;
  std::size_t failed_ = 0;
};
