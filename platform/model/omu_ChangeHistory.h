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
  // The newest entries kept. The journal lives as long as its thread and outlives every database
  // the thread used; unbounded, it would grow by one entry with every change for the thread's life.
  static constexpr std::size_t kCapacity = 4096;

  // The calling thread's journal.
  static omu_ChangeHistory& Instance();

  void Record(const cow_String& container, const char* operation, const cow_String& key);
  // The newest entries recorded since Clear, oldest first; at most kCapacity of them.
  const std::vector<omu_PrimTuple>& Entries() const noexcept { return entries_; }
  // Every entry recorded since Clear, dropped ones included: a mark for Truncate.
  std::size_t Size() const noexcept { return dropped_ + entries_.size(); }
  // Forgets the entries after the first n (a command that failed made them).
  void Truncate(std::size_t n);
  void Clear() noexcept;

 private:
  std::vector<omu_PrimTuple> entries_;
  std::size_t dropped_ = 0;  // the oldest entries, recorded and no longer kept
};
