#pragma once
// Warnings of the advice as JSON: [{"path":[...],"member":"...","code":"...","message":"..."}].
#include <vector>

#include "command/cmd_Advice.h"
#include "command/cmd_Json.h"

cmd_Json cmd_WarningsJson(const std::vector<cmd_Warning>& warnings);
