#pragma once
// Reading scripts of JSON Lines: one command per line; blank lines and lines whose first
// non-blank character is # are skipped.
#include <cstddef>
#include <functional>
#include <istream>
#include <string>

namespace odbattr {

// Calls fn with each command line and its line number (from 1); false when reading failed.
bool ForEachCommand(std::istream& in, const std::function<void(const std::string& line, std::size_t number)>& fn);

}  // namespace odbattr
