#include "platform/model/omu_ChangeHistory.h"

omu_ChangeHistory& omu_ChangeHistory::Instance() {
  thread_local omu_ChangeHistory history;
  return history;
}

void omu_ChangeHistory::Record(const cow_String& container, const char* operation, const cow_String& key) {
  entries_.push_back(omu_PrimTuple{container, operation, key});
}

void omu_ChangeHistory::Truncate(std::size_t n) {
  if (n < entries_.size()) entries_.resize(n);
}
