#include "dbfile/dbf_Faults.h"

namespace {
std::atomic<dbf_FaultPlan*> gPlan{nullptr};
}  // namespace

void dbf_SetFaultPlan(dbf_FaultPlan* plan) { gPlan.store(plan); }

bool dbf_FaultHere(const char* what) {
  dbf_FaultPlan* plan = gPlan.load(std::memory_order_relaxed);
  if (!plan) return false;
  if (++plan->passed != plan->failAt) return false;
  plan->failed = what;
  return true;
}
