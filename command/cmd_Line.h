#pragma once
// Reading one command. A line of a script is checked before it is parsed (it must be UTF-8 and
// nest at most cmd_kMaxDepth arrays and objects, so that no line can exhaust the stack), then
// parsed with duplicate keys refused; numbers beyond the range of a double are refused too. A
// command built by a caller is checked for what no name, key or value may hold: a NUL character
// or text that is not UTF-8. Every refusal is a nex_CmdException with a message that says what
// is wrong and where.
#include <cstddef>
#include <optional>
#include <string_view>

#include "command/cmd_Json.h"

// Arrays and objects nested deeper than this are refused before parsing; the deepest command a
// class of this library needs (inline objects in lists in objects) stays far below it.
constexpr std::size_t cmd_kMaxDepth = 64;

// Parses one command line: checks its encoding and depth, then parses it, refusing duplicate keys
// and out-of-range numbers.
cmd_Json cmd_ParseCommand(std::string_view line);

// Refuses a command whose strings (keys included) hold a NUL or invalid UTF-8, or that nests
// deeper than cmd_kMaxDepth.
void cmd_CheckCommand(const cmd_Json& command);
