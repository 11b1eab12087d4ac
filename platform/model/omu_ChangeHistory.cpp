#include "platform/model/omu_ChangeHistory.h"

#include <iterator>

omu_ChangeHistory& omu_ChangeHistory::Instance() {
  thread_local omu_ChangeHistory history;
  return history;
}

void omu_ChangeHistory::Record(const cow_String& container, const char* operation, const cow_String& key) {
  if (entries_.size() >= kCapacity) {
    // The older half goes at once, so dropping costs O(1) per entry recorded.
    constexpr std::ptrdiff_t kDrop = static_cast<std::ptrdiff_t>(kCapacity / 2);
    entries_.erase(entries_.begin(), std::next(entries_.begin(), kDrop));
    dropped_ += kCapacity / 2;
  }
  entries_.push_back(omu_PrimTuple{container, operation, key});
}

void omu_ChangeHistory::Truncate(std::size_t n) {
  if (n >= Size()) return;
  if (n <= dropped_) {
    // Every entry kept came after the mark.
    entries_.clear();
    dropped_ = n;
    return;
  }
  entries_.resize(n - dropped_);
}

void omu_ChangeHistory::Clear() noexcept {
  std::vector<omu_PrimTuple>().swap(entries_);
  dropped_ = 0;
}
