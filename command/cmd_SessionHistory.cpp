// The session's history: undo and redo of whole commands, and transactions. Every entry is a copy
// of the database as it was, which shares all it did not change with the database of today.
#include <string>

#include <nlohmann/json.hpp>

#include "command/cmd_Session.h"
#include "command/cmd_SessionSupport.h"

namespace {
cmd_Json Counts(std::size_t undo, std::size_t redo) {
  cmd_Json r = cmd_Json::object();
  r["undo"] = undo;
  r["redo"] = redo;
  return r;
}
}  // namespace

cmd_Json cmd_Session::Step(bool undo) {
  const char* op = undo ? "undo" : "redo";
  if (transaction_) cmd_Refuse(std::string(op) + " is not possible inside a transaction; commit or roll it back first");
  std::vector<ddr_Database>& from = undo ? undo_ : redo_;
  std::vector<ddr_Database>& to = undo ? redo_ : undo_;
  if (from.empty()) cmd_Refuse(std::string("There is nothing to ") + op);
  to.push_back(std::move(db_));
  db_ = std::move(from.back());
  from.pop_back();
  return Counts(undo_.size(), redo_.size());
}

cmd_Json cmd_Session::Bracket(const std::string& op) {
  if (op == "begin") {
    if (transaction_) cmd_Refuse("A transaction is already open; transactions do not nest");
    transaction_ = db_;
    return nullptr;
  }
  if (!transaction_) cmd_Refuse("There is no open transaction to " + op);
  if (op == "commit") {
    // The whole transaction is one entry of the history; one that changed nothing leaves none.
    if (!(*transaction_ == db_)) {
      undo_.push_back(std::move(*transaction_));
      redo_.clear();
    }
  } else {
    db_ = std::move(*transaction_);
  }
  transaction_.reset();
  return nullptr;
}

cmd_Json cmd_Session::Transaction(const cmd_Json& command) {
  if (!command.contains("commands") || !command["commands"].is_array())
    cmd_Refuse("A transaction needs \"commands\": an array of commands");
  Bracket("begin");
  cmd_Json results = cmd_Json::array();
  const cmd_Json& commands = command["commands"];
  for (std::size_t i = 0; i < commands.size(); ++i) {
    const std::string op = commands[i].is_object() && commands[i].contains("op") && commands[i]["op"].is_string()
                               ? commands[i]["op"].get<std::string>()
                               : "";
    if (op == "transaction" || op == "begin" || op == "commit" || op == "rollback" || op == "undo" || op == "redo" ||
        op == "open") {
      db_ = std::move(*transaction_);
      transaction_.reset();
      cmd_Refuse("Command " + std::to_string(i) + " of the transaction is \"" + op + "\", which a transaction cannot hold");
    }
    cmd_Json r = Execute(commands[i]);
    if (!r["ok"].get<bool>()) {
      --failed_;  // counted once, as the transaction's failure
      cmd_Json error = r["error"];
      error["command"] = i;
      throw cmd_TransactionFailure{std::move(error)};
    }
    --succeeded_;
    results.push_back(r.contains("result") ? r["result"] : cmd_Json());
  }
  Bracket("commit");
  return results;
}
