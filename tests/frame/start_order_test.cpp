// The exact start order of the framework libraries and modules, and the exact reverse on stop.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "frame/QMXOdbAttrEO2.h"
#include "platform/base/bas_StartJournal.h"
#include "tests/frame/frame_units.h"

namespace {
const std::vector<std::string> kStartOrder = {
    "start QMXOdbAttrEO2",
    "start QMXOdbCoreGeom",   "start QMXShpCore",      "start QMXRomDiagEx", "start QMXRomCore",
    "start QMXAbuGeom",       "start QMXAbuBasicUtils", "start QMXBasShared", "start QMXBasCoreUtils",
    "start QMXBasAlloc",
    "start QMXOdbKefC",       "start QMXOdbKtbC",      "start QMXOdbKbeC",   "start QMXOdbKipC",
    "start QMXOdbKamC",       "start QMXOdbKbpC",      "start QMXOdbKflC",   "start QMXOdbKmaC",
    "start QMXOdbKlcC",       "start QMXOdbKfdC",      "start QMXOdbKcoC",   "start QMXOdbKarC",
    "start QMXOdbKadC",       "start QMXOdbKopC",
};

const std::vector<std::string> kStopOrder = {
    "stop QMXOdbAttrEO2",
    "stop QMXOdbKopC",       "stop QMXOdbKadC",       "stop QMXOdbKarC",   "stop QMXOdbKcoC",
    "stop QMXOdbKfdC",       "stop QMXOdbKlcC",       "stop QMXOdbKmaC",   "stop QMXOdbKflC",
    "stop QMXOdbKbpC",       "stop QMXOdbKamC",       "stop QMXOdbKipC",   "stop QMXOdbKbeC",
    "stop QMXOdbKtbC",       "stop QMXOdbKefC",
    "stop QMXBasAlloc",      "stop QMXBasCoreUtils",  "stop QMXBasShared", "stop QMXAbuBasicUtils",
    "stop QMXAbuGeom",       "stop QMXRomCore",       "stop QMXRomDiagEx", "stop QMXShpCore",
    "stop QMXOdbCoreGeom",
};
}  // namespace

// Runs before any fixture of this program has stopped the library: the journal's first entries
// are those of the load.
TEST(LoadTest, LoadingStartsEverythingOnceWithTheLoadCount) {
  std::vector<std::string> first = frame_StartsAndStops(0);
  ASSERT_GE(first.size(), kStartOrder.size());
  first.resize(kStartOrder.size());
  EXPECT_EQ(first, kStartOrder);
  EXPECT_EQ(QMXOdbAttrEO2_libraryCount(), 1);
  EXPECT_EQ(QMXOdbAttrEO2_specificCount(), 1);
  EXPECT_EQ(QMXOdbAttrEO2_loadCount(), kFullTally);
  EXPECT_EQ(QMXOdbAttrEO2_cEntryCount(), 0);
  for (const auto& u : frame_AllUnits()) EXPECT_EQ(u.count(), 1) << u.name;
}

TEST_F(frame_StoppedLibrary, StartsInTheFixedOrderAndStopsInExactlyTheReverse) {
  int tally = 0;
  std::size_t mark = bas_StartJournal::Mark();
  QMXOdbAttrEO2_initialize(tally);
  EXPECT_EQ(frame_StartsAndStops(mark), kStartOrder);

  mark = bas_StartJournal::Mark();
  QMXOdbAttrEO2_finalize(tally);
  EXPECT_EQ(frame_StartsAndStops(mark), kStopOrder);
  EXPECT_EQ(tally, 0);
}

TEST_F(frame_StoppedLibrary, TheLoaderHookStartsOnAttachStopsOnDetachAndIgnoresThreads) {
  struct Step {
    QMXOdbAttrEO2_LoadReason reason;
    int libraryCount;
    int loadCount;
  };
  const Step steps[] = {
      {QMXOdbAttrEO2_LoadReason::ThreadAttach, 0, 0},
      {QMXOdbAttrEO2_LoadReason::ProcessAttach, 1, kFullTally},
      {QMXOdbAttrEO2_LoadReason::ThreadAttach, 1, kFullTally},
      {QMXOdbAttrEO2_LoadReason::ThreadDetach, 1, kFullTally},
      {QMXOdbAttrEO2_LoadReason::ProcessDetach, 0, 0},
      {QMXOdbAttrEO2_LoadReason::ThreadDetach, 0, 0},
  };
  for (const Step& s : steps) {
    std::size_t mark = bas_StartJournal::Mark();
    EXPECT_TRUE(QMXOdbAttrEO2_loaderHook(s.reason));
    EXPECT_EQ(QMXOdbAttrEO2_libraryCount(), s.libraryCount) << static_cast<int>(s.reason);
    EXPECT_EQ(QMXOdbAttrEO2_loadCount(), s.loadCount) << static_cast<int>(s.reason);
    bool threadEvent = s.reason == QMXOdbAttrEO2_LoadReason::ThreadAttach ||
                       s.reason == QMXOdbAttrEO2_LoadReason::ThreadDetach;
    if (threadEvent) {
      EXPECT_EQ(bas_StartJournal::Since(mark), std::vector<std::string>{});
    }
  }
}

TEST_F(frame_StoppedLibrary, TheCEntryPointsCountWithTheirOwnTally) {
  QMXOdbAttrEO2_initializeC();
  EXPECT_EQ(QMXOdbAttrEO2_cEntryCount(), kFullTally);
  EXPECT_EQ(QMXOdbAttrEO2_libraryCount(), 1);
  QMXOdbAttrEO2_finalizeC();
  EXPECT_EQ(QMXOdbAttrEO2_cEntryCount(), 0);
  EXPECT_EQ(QMXOdbAttrEO2_libraryCount(), 0);

  // Nested within another caller's start: the C-entry tally is left alone.
  int tally = 0;
  QMXOdbAttrEO2_initialize(tally);
  QMXOdbAttrEO2_initializeC();
  EXPECT_EQ(QMXOdbAttrEO2_cEntryCount(), 0);
  EXPECT_EQ(QMXOdbAttrEO2_libraryCount(), 2);
  QMXOdbAttrEO2_finalizeC();
  EXPECT_EQ(QMXOdbAttrEO2_cEntryCount(), 0);
  EXPECT_EQ(QMXOdbAttrEO2_libraryCount(), 1);
  QMXOdbAttrEO2_finalize(tally);
  EXPECT_EQ(tally, 0);
}
