#include "tests/frame/frame_units.h"

#include "frame/QMXOdbAttrEO2.h"
#include "kad/QMXOdbKadC.h"
#include "kam/QMXOdbKamC.h"
#include "kar/QMXOdbKarC.h"
#include "kbe/QMXOdbKbeC.h"
#include "kbp/QMXOdbKbpC.h"
#include "kco/QMXOdbKcoC.h"
#include "kef/QMXOdbKefC.h"
#include "kfd/QMXOdbKfdC.h"
#include "kfl/QMXOdbKflC.h"
#include "kip/QMXOdbKipC.h"
#include "klc/QMXOdbKlcC.h"
#include "kma/QMXOdbKmaC.h"
#include "kop/QMXOdbKopC.h"
#include "ktb/QMXOdbKtbC.h"
#include "platform/QMXFrameworkLibraries.h"
#include "platform/base/bas_StartJournal.h"

#define FRAME_UNIT(X) frame_Unit{#X, &X##_initialize, &X##_finalize, &X##_count}

const std::vector<frame_Unit>& frame_FrameworkLibraries() {
  static const std::vector<frame_Unit> units = {
      FRAME_UNIT(QMXAbuBasicUtils), FRAME_UNIT(QMXAbuGeom),    FRAME_UNIT(QMXBasAlloc),
      FRAME_UNIT(QMXBasCoreUtils),  FRAME_UNIT(QMXBasShared),  FRAME_UNIT(QMXOdbCoreGeom),
      FRAME_UNIT(QMXRomCore),       FRAME_UNIT(QMXRomDiagEx),  FRAME_UNIT(QMXShpCore),
  };
  return units;
}

const std::vector<frame_Unit>& frame_Modules() {
  static const std::vector<frame_Unit> units = {
      FRAME_UNIT(QMXOdbKadC), FRAME_UNIT(QMXOdbKamC), FRAME_UNIT(QMXOdbKarC), FRAME_UNIT(QMXOdbKbeC),
      FRAME_UNIT(QMXOdbKbpC), FRAME_UNIT(QMXOdbKcoC), FRAME_UNIT(QMXOdbKefC), FRAME_UNIT(QMXOdbKfdC),
      FRAME_UNIT(QMXOdbKflC), FRAME_UNIT(QMXOdbKipC), FRAME_UNIT(QMXOdbKlcC), FRAME_UNIT(QMXOdbKmaC),
      FRAME_UNIT(QMXOdbKopC), FRAME_UNIT(QMXOdbKtbC),
  };
  return units;
}

std::vector<frame_Unit> frame_AllUnits() {
  std::vector<frame_Unit> all = frame_FrameworkLibraries();
  all.insert(all.end(), frame_Modules().begin(), frame_Modules().end());
  return all;
}

std::vector<std::string> frame_StartsAndStops(std::size_t mark) {
  std::vector<std::string> out;
  for (const auto& e : bas_StartJournal::Since(mark))
    if (e.rfind("start ", 0) == 0 || e.rfind("stop ", 0) == 0) out.push_back(e);
  return out;
}

void frame_StoppedLibrary::SetUp() {
  // The library was started by loading it, with the load count alone.
  ASSERT_EQ(QMXOdbAttrEO2_libraryCount(), 1);
  ASSERT_EQ(QMXOdbAttrEO2_loadCount(), kFullTally);
  ASSERT_TRUE(QMXOdbAttrEO2_loaderHook(QMXOdbAttrEO2_LoadReason::ProcessDetach));
  ASSERT_EQ(QMXOdbAttrEO2_loadCount(), 0);
  ExpectAllStopped();
}

void frame_StoppedLibrary::TearDown() {
  // The test must have undone all it did; the library then starts again as the loader left it.
  ExpectAllStopped();
  EXPECT_TRUE(QMXOdbAttrEO2_loaderHook(QMXOdbAttrEO2_LoadReason::ProcessAttach));
  EXPECT_EQ(QMXOdbAttrEO2_libraryCount(), 1);
  EXPECT_EQ(QMXOdbAttrEO2_loadCount(), kFullTally);
  EXPECT_EQ(QMXOdbAttrEO2_specificCount(), 1);
  for (const auto& u : frame_AllUnits()) EXPECT_EQ(u.count(), 1) << u.name;
}

void frame_StoppedLibrary::ExpectAllStopped() {
  EXPECT_EQ(QMXOdbAttrEO2_libraryCount(), 0);
  EXPECT_EQ(QMXOdbAttrEO2_specificCount(), 0);
  EXPECT_EQ(QMXOdbAttrEO2_cEntryCount(), 0);
  for (const auto& u : frame_AllUnits()) EXPECT_EQ(u.count(), 0) << u.name;
}
