#pragma once
// The per-thread journal of modifications made through repositories.
#include <cstddef>
#include <vector>

#include "platform/base/cow_String.h"

// One journal entry: the container, the operation ("Insert", "Modify", "Remove") and the key.
struct omu_PrimTuple {
  cow_String container;
  cow_String operation;
  cow_String key;
  friend bool operator==(const omu_PrimTuple&, const omu_PrimTuple&) = default;
};

class omu_ChangeHistory {
 public:
  // The calling thread's journal.
  static omu_ChangeHistory& Instance();

  void Record(const cow_String& container, const char* operation, const cow_String& key);
  const std::vector<omu_PrimTuple>& Entries() const noexcept { return entries_; }
  std::size_t Size() const noexcept { return entries_.size(); }
  // Forgets the entries after the first n (a command that failed made them).
  void Truncate(std::size_t n);
  void Clear() noexcept { entries_.clear(); }

 private:
  std::vector<omu_PrimTuple> entries_;
};
