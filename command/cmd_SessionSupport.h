#pragma once
// What the session's ops share: reading a command's keys, naming members in refusals, and the
// validation failure that a failed validate carries. Included only by the session's sources.
#include <optional>
#include <string>
#include <vector>

#include "command/cmd_Advice.h"
#include "command/cmd_Check.h"
#include "command/cmd_Json.h"
#include "command/cmd_Path.h"

// A validation failure of an object below the validated node: reported with its own path.
struct cmd_ValidationFailure {
  std::vector<cmd_Failure> failures;  // at least one; first failure first
  std::vector<cmd_Warning> warnings;
};

// A command of a transaction failed: its error as answered, with "command" its position.
struct cmd_TransactionFailure {
  cmd_Json error;
};

cmd_Path cmd_PathOf(const cmd_Json& command);
std::optional<std::string> cmd_TypeOf(const cmd_Json& command);
std::string cmd_FileOf(const cmd_Json& command);
cmd_Json cmd_PathJson(const cmd_Path& path);

// "the member "x" of Tie", for refusals.
std::string cmd_MemberText(const cls_ScriptField& f, const cls_ClassMetadata& owner);
