#include "platform/QMXFrameworkLibraries.h"

#include "platform/base/bas_StartCount.h"
#include "platform/base/bas_StartJournal.h"
#include "platform/persist/cls_ClassRegistrar.h"
#include "platform/model/ddr_Model.h"
#include "platform/base/omi_Singleton.h"

namespace {
int coreGeomCount = 0;
int shpCoreCount = 0;
int romDiagExCount = 0;
int romCoreCount = 0;
int abuGeomCount = 0;
int abuBasicUtilsCount = 0;
int basSharedCount = 0;
int basCoreUtilsCount = 0;
int basAllocCount = 0;
constexpr unsigned kModelGroup = 1;

// The libraries whose services need no start work of their own here: they only count and record.
void CountedStart(int& count, int& tally, const char* name) {
  if (bas_FirstStart(count, tally)) bas_StartJournal::Start(name);
}

void CountedStop(int& count, int& tally, const char* name) {
  if (bas_LastStop(count, tally)) bas_StartJournal::Stop(name);
}
}  // namespace

void QMXOdbCoreGeom_initialize(int& tally) { CountedStart(coreGeomCount, tally, "QMXOdbCoreGeom"); }
void QMXOdbCoreGeom_finalize(int& tally) { CountedStop(coreGeomCount, tally, "QMXOdbCoreGeom"); }
int QMXOdbCoreGeom_count() { return coreGeomCount; }

void QMXShpCore_initialize(int& tally) { CountedStart(shpCoreCount, tally, "QMXShpCore"); }
void QMXShpCore_finalize(int& tally) { CountedStop(shpCoreCount, tally, "QMXShpCore"); }
int QMXShpCore_count() { return shpCoreCount; }

void QMXRomDiagEx_initialize(int& tally) {
  if (!bas_FirstStart(romDiagExCount, tally)) return;
  bas_StartJournal::Start("QMXRomDiagEx");
  // The model is stored like any class. Group 1: a framework class, neither attribute, map nor
  // wrapper. The registrar calls the function once however often it is handed in.
  omi_Singleton<cls_MetadataRegistrar>::Instance().initClassMetadata(&ddr_Model::InitializeMetadata, kModelGroup);
}
// Metadata registrations are not undone.
void QMXRomDiagEx_finalize(int& tally) { CountedStop(romDiagExCount, tally, "QMXRomDiagEx"); }
int QMXRomDiagEx_count() { return romDiagExCount; }

void QMXRomCore_initialize(int& tally) { CountedStart(romCoreCount, tally, "QMXRomCore"); }
void QMXRomCore_finalize(int& tally) { CountedStop(romCoreCount, tally, "QMXRomCore"); }
int QMXRomCore_count() { return romCoreCount; }

void QMXAbuGeom_initialize(int& tally) { CountedStart(abuGeomCount, tally, "QMXAbuGeom"); }
void QMXAbuGeom_finalize(int& tally) { CountedStop(abuGeomCount, tally, "QMXAbuGeom"); }
int QMXAbuGeom_count() { return abuGeomCount; }

void QMXAbuBasicUtils_initialize(int& tally) { CountedStart(abuBasicUtilsCount, tally, "QMXAbuBasicUtils"); }
void QMXAbuBasicUtils_finalize(int& tally) { CountedStop(abuBasicUtilsCount, tally, "QMXAbuBasicUtils"); }
int QMXAbuBasicUtils_count() { return abuBasicUtilsCount; }

void QMXBasShared_initialize(int& tally) { CountedStart(basSharedCount, tally, "QMXBasShared"); }
void QMXBasShared_finalize(int& tally) { CountedStop(basSharedCount, tally, "QMXBasShared"); }
int QMXBasShared_count() { return basSharedCount; }

void QMXBasCoreUtils_initialize(int& tally) { CountedStart(basCoreUtilsCount, tally, "QMXBasCoreUtils"); }
void QMXBasCoreUtils_finalize(int& tally) { CountedStop(basCoreUtilsCount, tally, "QMXBasCoreUtils"); }
int QMXBasCoreUtils_count() { return basCoreUtilsCount; }

void QMXBasAlloc_initialize(int& tally) { CountedStart(basAllocCount, tally, "QMXBasAlloc"); }
void QMXBasAlloc_finalize(int& tally) { CountedStop(basAllocCount, tally, "QMXBasAlloc"); }
int QMXBasAlloc_count() { return basAllocCount; }
