#pragma once
// The counted units of the library as the tests see them, and a fixture that runs each test on a
// stopped library and starts it again afterwards, so every test program is left as it was loaded.
#include <gtest/gtest.h>

#include <string>
#include <vector>

struct frame_Unit {
  const char* name;  // as the journal records it
  void (*initialize)(int&);
  void (*finalize)(int&);
  int (*count)();
};

// The nine framework libraries and the fourteen modules, in no particular order.
const std::vector<frame_Unit>& frame_FrameworkLibraries();
const std::vector<frame_Unit>& frame_Modules();
std::vector<frame_Unit> frame_AllUnits();

// The journal's "start X" and "stop X" entries since a mark, registrations left out.
std::vector<std::string> frame_StartsAndStops(std::size_t mark);

// What one first start of the library adds to its tally: the library itself, nine framework
// libraries, fourteen modules and the first specific user.
constexpr int kFullTally = 1 + 9 + 14 + 1;

class frame_StoppedLibrary : public ::testing::Test {
 protected:
  void SetUp() override;
  void TearDown() override;
  // Every counter of the library and of each unit is zero.
  static void ExpectAllStopped();
};
