#include "command/cmd_FailureJson.h"

#include <nlohmann/json.hpp>

namespace {

cmd_Json cmd_FailureJson(const cmd_Failure& f) {
  cmd_Json one = cmd_Json::object();
  one["kind"] = f.kind;
  one["message"] = f.message;
  one["file"] = f.file;
  one["line"] = f.line;
  one["path"] = cmd_Json::array();
  for (const auto& step : f.path) one["path"].push_back(step.str());
  if (!f.member.empty()) one["member"] = f.member;
  return one;
}

}  // namespace

cmd_Json cmd_FailuresJson(const std::vector<cmd_Failure>& failures) {
  if (failures.empty()) return cmd_Json::object();
  cmd_Json error = cmd_FailureJson(failures.front());
  error["failures"] = cmd_Json::array();
  for (const auto& f : failures) error["failures"].push_back(cmd_FailureJson(f));
  return error;
}
