// Loading and unloading the shared library stand for process attach and detach.
//
// This file's object comes last in the library's link order, so the attach runs after every
// other translation unit of the library has been dynamically initialized. Statics first created by
// the attach (registries, prototypes, the journal) are destroyed only after the detach has run.
#include "frame/QMXOdbAttrEO2.h"

namespace {
__attribute__((constructor)) void OnLoad() { QMXOdbAttrEO2_loaderHook(QMXOdbAttrEO2_LoadReason::ProcessAttach); }

__attribute__((destructor)) void OnUnload() { QMXOdbAttrEO2_loaderHook(QMXOdbAttrEO2_LoadReason::ProcessDetach); }
}  // namespace
