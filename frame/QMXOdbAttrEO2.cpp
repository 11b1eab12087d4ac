#include "frame/QMXOdbAttrEO2.h"

#include <iterator>

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
#include "platform/base/bas_StartCount.h"
#include "platform/base/bas_StartJournal.h"

namespace {
int libraryCount = 0;
int specificCount = 0;
int cEntryCount = 0;
int loadCount = 0;

struct Unit {
  void (*initialize)(int&);
  void (*finalize)(int&);
};

// Start order; stops run this list backwards. The framework order starts the allocator last and
// the module order is not alphabetical: both are required as they stand.
constexpr Unit kFrameworkLibraries[] = {
    {&QMXOdbCoreGeom_initialize, &QMXOdbCoreGeom_finalize},
    {&QMXShpCore_initialize, &QMXShpCore_finalize},
    {&QMXRomDiagEx_initialize, &QMXRomDiagEx_finalize},
    {&QMXRomCore_initialize, &QMXRomCore_finalize},
    {&QMXAbuGeom_initialize, &QMXAbuGeom_finalize},
    {&QMXAbuBasicUtils_initialize, &QMXAbuBasicUtils_finalize},
    {&QMXBasShared_initialize, &QMXBasShared_finalize},
    {&QMXBasCoreUtils_initialize, &QMXBasCoreUtils_finalize},
    {&QMXBasAlloc_initialize, &QMXBasAlloc_finalize},
};

constexpr Unit kModules[] = {
    {&QMXOdbKefC_initialize, &QMXOdbKefC_finalize},
    {&QMXOdbKtbC_initialize, &QMXOdbKtbC_finalize},
    {&QMXOdbKbeC_initialize, &QMXOdbKbeC_finalize},
    {&QMXOdbKipC_initialize, &QMXOdbKipC_finalize},
    {&QMXOdbKamC_initialize, &QMXOdbKamC_finalize},
    {&QMXOdbKbpC_initialize, &QMXOdbKbpC_finalize},
    {&QMXOdbKflC_initialize, &QMXOdbKflC_finalize},
    {&QMXOdbKmaC_initialize, &QMXOdbKmaC_finalize},
    {&QMXOdbKlcC_initialize, &QMXOdbKlcC_finalize},
    {&QMXOdbKfdC_initialize, &QMXOdbKfdC_finalize},
    {&QMXOdbKcoC_initialize, &QMXOdbKcoC_finalize},
    {&QMXOdbKarC_initialize, &QMXOdbKarC_finalize},
    {&QMXOdbKadC_initialize, &QMXOdbKadC_finalize},
    {&QMXOdbKopC_initialize, &QMXOdbKopC_finalize},
};

template <std::size_t N>
void StartAll(const Unit (&units)[N], int& tally) {
  for (const Unit& u : units) u.initialize(tally);
}

template <std::size_t N>
void StopAll(const Unit (&units)[N], int& tally) {
  for (auto it = std::rbegin(units); it != std::rend(units); ++it) it->finalize(tally);
}
}  // namespace

void QMXOdbAttrEO2_initialize(int& tally) {
  if (!bas_FirstStart(libraryCount, tally)) return;
  bas_StartJournal::Start("QMXOdbAttrEO2");
  StartAll(kFrameworkLibraries, tally);
  StartAll(kModules, tally);
  QMXOdbAttrEO2_specific_initialize(tally);
}

void QMXOdbAttrEO2_finalize(int& tally) {
  if (!bas_LastStop(libraryCount, tally)) return;
  bas_StartJournal::Stop("QMXOdbAttrEO2");
  // Released before the modules stop although the start takes it after they started: intended.
  QMXOdbAttrEO2_specific_finalize(tally);
  StopAll(kModules, tally);
  StopAll(kFrameworkLibraries, tally);
}

void QMXOdbAttrEO2_specific_initialize(int& tally) {
  if (specificCount++ == 0) ++tally;
}

// Below zero the count keeps falling and the tally is left alone.
void QMXOdbAttrEO2_specific_finalize(int& tally) {
  if (specificCount-- == 1) --tally;
}

extern "C" void QMXOdbAttrEO2_initializeC() { QMXOdbAttrEO2_initialize(cEntryCount); }

extern "C" void QMXOdbAttrEO2_finalizeC() { QMXOdbAttrEO2_finalize(cEntryCount); }

bool QMXOdbAttrEO2_loaderHook(QMXOdbAttrEO2_LoadReason reason) {
  switch (reason) {
    case QMXOdbAttrEO2_LoadReason::ProcessAttach:
      QMXOdbAttrEO2_initialize(loadCount);
      break;
    case QMXOdbAttrEO2_LoadReason::ProcessDetach:
      QMXOdbAttrEO2_finalize(loadCount);
      break;
    case QMXOdbAttrEO2_LoadReason::ThreadAttach:
    case QMXOdbAttrEO2_LoadReason::ThreadDetach:
      break;
  }
  return true;
}

int QMXOdbAttrEO2_libraryCount() { return libraryCount; }
int QMXOdbAttrEO2_specificCount() { return specificCount; }
int QMXOdbAttrEO2_cEntryCount() { return cEntryCount; }
int QMXOdbAttrEO2_loadCount() { return loadCount; }
