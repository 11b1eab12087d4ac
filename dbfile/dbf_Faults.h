#pragma once
// Injected I/O faults, for tests: a killed process keeps what the page cache holds, so only a
// failing call shows how a save meets a full disk or a dying device. Each point where a save
// writes, truncates, syncs or renames asks here first; with a plan set, the plan's chosen call
// fails as the operating system would fail it (an I/O error) and every other call goes through.
#include <atomic>

struct dbf_FaultPlan {
  int failAt = 0;  // the 1-based point to fail; 0 fails none (and only counts)
  int passed = 0;  // the points met so far
  const char* failed = nullptr;  // the point that was failed, once it was
};

// Sets the plan the next points count against (null: none). Not for concurrent saves.
void dbf_SetFaultPlan(dbf_FaultPlan* plan);
// Counts one point of kind `what`; true when this call is to fail.
bool dbf_FaultHere(const char* what);
