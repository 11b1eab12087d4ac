#include "platform/base/bas_StartJournal.h"

namespace {
// Created by the first start (the load hook), so it outlives the stop at unload.
std::vector<std::string>& Journal() {
  static std::vector<std::string> journal;
  return journal;
}

void Append(const char* verb, const char* name) { Journal().push_back(std::string(verb) + " " + name); }
}  // namespace

void bas_StartJournal::Start(const char* unit) { Append("start", unit); }
void bas_StartJournal::Stop(const char* unit) { Append("stop", unit); }
void bas_StartJournal::Register(const char* what) { Append("register", what); }

const std::vector<std::string>& bas_StartJournal::Entries() { return Journal(); }

std::size_t bas_StartJournal::Mark() { return Journal().size(); }

std::vector<std::string> bas_StartJournal::Since(std::size_t mark) {
  const auto& all = Journal();
  if (mark >= all.size()) return {};
  return std::vector<std::string>(all.begin() + static_cast<std::ptrdiff_t>(mark), all.end());
}
