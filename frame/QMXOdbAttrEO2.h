#pragma once
// Entry points of the attribute library. Starts and stops are counted: the first initialize starts
// the framework libraries and then the modules, the last finalize stops them in reverse. Every
// entry point takes the caller's tally, which each first start of a counted unit raises by one and
// each last stop lowers by one. Not thread-safe: call from one thread at a time.

void QMXOdbAttrEO2_initialize(int& tally);
void QMXOdbAttrEO2_finalize(int& tally);
// Count one more (one fewer) "specific" user without starting (stopping) anything.
void QMXOdbAttrEO2_specific_initialize(int& tally);
void QMXOdbAttrEO2_specific_finalize(int& tally);

extern "C" {
// The two main entry points applied to the library's own C-entry count.
void QMXOdbAttrEO2_initializeC();
void QMXOdbAttrEO2_finalizeC();
}

// Why the loader calls the hook; the values are the loader's own codes.
enum class QMXOdbAttrEO2_LoadReason : int {
  ProcessDetach = 0,
  ProcessAttach = 1,
  ThreadAttach = 2,
  ThreadDetach = 3,
};

// The loader hook: process attach starts the library with the load count, process detach stops
// it; thread attach and detach do nothing. Always reports success. Loading and unloading the
// shared library call it.
bool QMXOdbAttrEO2_loaderHook(QMXOdbAttrEO2_LoadReason reason);

// The library's counters, for inspection.
int QMXOdbAttrEO2_libraryCount();
int QMXOdbAttrEO2_specificCount();
int QMXOdbAttrEO2_cEntryCount();
int QMXOdbAttrEO2_loadCount();
