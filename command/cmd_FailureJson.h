#pragma once
// Failures of a validation as the error of a failed validate: the first failure's kind, message,
// file, line, path and member (where one is named), and under "failures" every failure alike,
// first failure first.
#include <vector>

#include "command/cmd_Check.h"
#include "command/cmd_Json.h"

cmd_Json cmd_FailuresJson(const std::vector<cmd_Failure>& failures);
