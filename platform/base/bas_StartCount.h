#pragma once
// The counted start and stop shared by the library, its framework libraries and its modules.
// Counts are plain ints: starts and stops must not run concurrently.

// Adds one to count; on the first start (count was zero) adds one to the caller's tally and
// returns true: the caller then does its work. Any other call changes nothing else.
inline bool bas_FirstStart(int& count, int& tally) {
  if (count++ != 0) return false;
  ++tally;
  return true;
}

// Takes one from count; on the last stop (count was one) takes one from the tally and returns
// true. A stop without a start leaves the count negative and does nothing else.
inline bool bas_LastStop(int& count, int& tally) {
  if (count-- != 1) return false;
  --tally;
  return true;
}
