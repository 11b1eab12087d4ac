// Each framework library and module is counted on its own, and the library start respects units
// that were started directly.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "frame/QMXOdbAttrEO2.h"
#include "kam/QMXOdbKamC.h"
#include "platform/base/bas_StartJournal.h"
#include "tests/frame/frame_units.h"

namespace {
using Strings = std::vector<std::string>;

bool Contains(const Strings& v, const std::string& s) { return std::find(v.begin(), v.end(), s) != v.end(); }
}  // namespace

TEST_F(frame_StoppedLibrary, EveryUnitCountsItsStartsAndStops) {
  struct Step {
    bool start;
    int count;
    int tally;
    const char* journal;  // "start", "stop" or nullptr for nothing
  };
  const Step steps[] = {
      {true, 1, 1, "start"},   {true, 2, 1, nullptr},  {false, 1, 1, nullptr}, {false, 0, 0, "stop"},
      {false, -1, 0, nullptr}, {false, -2, 0, nullptr}, {true, -1, 0, nullptr}, {true, 0, 0, nullptr},
  };
  std::vector<frame_Unit> units = frame_AllUnits();
  ASSERT_EQ(units.size(), 23u);
  for (const frame_Unit& u : units) {
    SCOPED_TRACE(u.name);
    int tally = 0;
    for (const Step& s : steps) {
      std::size_t mark = bas_StartJournal::Mark();
      (s.start ? u.initialize : u.finalize)(tally);
      EXPECT_EQ(u.count(), s.count);
      EXPECT_EQ(tally, s.tally);
      Strings expected;
      if (s.journal) expected.push_back(std::string(s.journal) + " " + u.name);
      EXPECT_EQ(frame_StartsAndStops(mark), expected);
    }
    // No unit starts or stops another.
    for (const frame_Unit& other : units) EXPECT_EQ(other.count(), 0) << other.name;
  }
}

// A module the caller started directly, or stopped behind the library's back (count below zero),
// is neither started nor stopped by the library, whose start and stop only count on it; the
// library's stop brings it back to where it was.
TEST_F(frame_StoppedLibrary, AModuleStartedOrStoppedDirectlyIsOnlyCountedByTheLibrary) {
  struct Case {
    const char* what;
    bool ownStart;
    int before;  // the module's count before and after the library's start and stop
    int during;
  };
  const Case cases[] = {{"started directly", true, 1, 2}, {"driven negative", false, -1, 0}};
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    int own = 0;
    (c.ownStart ? QMXOdbKamC_initialize : QMXOdbKamC_finalize)(own);
    EXPECT_EQ(own, c.ownStart ? 1 : 0);
    EXPECT_EQ(QMXOdbKamC_count(), c.before);

    int tally = 0;
    std::size_t mark = bas_StartJournal::Mark();
    QMXOdbAttrEO2_initialize(tally);
    Strings started = frame_StartsAndStops(mark);
    EXPECT_EQ(started.size(), 23u);
    EXPECT_FALSE(Contains(started, "start QMXOdbKamC"));
    EXPECT_EQ(QMXOdbKamC_count(), c.during);
    EXPECT_EQ(tally, kFullTally - 1);

    mark = bas_StartJournal::Mark();
    QMXOdbAttrEO2_finalize(tally);
    Strings stopped = frame_StartsAndStops(mark);
    EXPECT_EQ(stopped.size(), 23u);
    EXPECT_FALSE(Contains(stopped, "stop QMXOdbKamC"));
    EXPECT_EQ(QMXOdbKamC_count(), c.before);
    EXPECT_EQ(tally, 0);

    (c.ownStart ? QMXOdbKamC_finalize : QMXOdbKamC_initialize)(own);
    EXPECT_EQ(own, 0);
  }
}
