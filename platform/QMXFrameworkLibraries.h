#pragma once
// Entry points of the nine framework libraries the attribute library rests on. Each is counted
// like a module: the first initialize adds one to the caller's tally and does the library's start
// work, the last finalize takes one and undoes what must be undone.

void QMXOdbCoreGeom_initialize(int& tally);
void QMXOdbCoreGeom_finalize(int& tally);
int QMXOdbCoreGeom_count();

void QMXShpCore_initialize(int& tally);
void QMXShpCore_finalize(int& tally);
int QMXShpCore_count();

// Owns the model: its first start registers the model's class metadata.
void QMXRomDiagEx_initialize(int& tally);
void QMXRomDiagEx_finalize(int& tally);
int QMXRomDiagEx_count();

void QMXRomCore_initialize(int& tally);
void QMXRomCore_finalize(int& tally);
int QMXRomCore_count();

void QMXAbuGeom_initialize(int& tally);
void QMXAbuGeom_finalize(int& tally);
int QMXAbuGeom_count();

void QMXAbuBasicUtils_initialize(int& tally);
void QMXAbuBasicUtils_finalize(int& tally);
int QMXAbuBasicUtils_count();

void QMXBasShared_initialize(int& tally);
void QMXBasShared_finalize(int& tally);
int QMXBasShared_count();

void QMXBasCoreUtils_initialize(int& tally);
void QMXBasCoreUtils_finalize(int& tally);
int QMXBasCoreUtils_count();

void QMXBasAlloc_initialize(int& tally);
void QMXBasAlloc_finalize(int& tally);
int QMXBasAlloc_count();
