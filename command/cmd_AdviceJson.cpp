#include "command/cmd_AdviceJson.h"

#include <nlohmann/json.hpp>

cmd_Json cmd_WarningsJson(const std::vector<cmd_Warning>& warnings) {
  cmd_Json a = cmd_Json::array();
  for (const cmd_Warning& w : warnings) {
    cmd_Json one = cmd_Json::object();
    one["path"] = cmd_Json::array();
    for (const auto& step : w.path) one["path"].push_back(step.str());
    one["member"] = w.member;
    one["code"] = w.code;
    one["message"] = w.message;
    a.push_back(std::move(one));
  }
  return a;
}
