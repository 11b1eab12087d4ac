#include "cli/odbattr_Script.h"

namespace odbattr {

bool ForEachCommand(std::istream& in, const std::function<void(const std::string& line, std::size_t number)>& fn) {
  std::string line;
  std::size_t number = 0;
  while (std::getline(in, line)) {
    ++number;
    const auto first = line.find_first_not_of(" \t\r");
    if (first == std::string::npos || line[first] == '#') continue;
    fn(line, number);
  }
  return !in.bad();
}

}  // namespace odbattr
