#pragma once
// The process-wide journal of starts, stops and registrations of the library, its framework
// libraries and its modules, in the order they happened. Entries read "start <unit>",
// "stop <unit>" and "register <what>"; readers compare orders after the fact.
#include <cstddef>
#include <string>
#include <vector>

class bas_StartJournal {
 public:
  static void Start(const char* unit);
  static void Stop(const char* unit);
  static void Register(const char* what);

  static const std::vector<std::string>& Entries();
  // The number of entries so far: a mark to read later entries from.
  static std::size_t Mark();
  // The entries appended since a mark.
  static std::vector<std::string> Since(std::size_t mark);
};
