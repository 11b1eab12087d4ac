// Loading and unloading the shared library stand for process attach and detach.
//
// This file's object comes last in the library's link order, so the attach runs after every
// other translation unit of the library has been dynamically initialized.
//
// The detach must run while the statics that the attach created (registries, prototypes, the
// journal, some of them in the platform library) still exist. Their destructors are exit handlers,
// run in the reverse order of their registration; a destructor of this library's fini section runs
// after all of them when the library was opened at run time (dlopen), and would find them gone.
// The attach therefore registers the detach as an exit handler of this library once it is done, so
// that it runs before the destructors of everything the attach created: at exit, and at a dlclose
// that unloads the library.
#include "frame/QMXOdbAttrEO2.h"

extern "C" {
extern void* __dso_handle;
int __cxa_atexit(void (*fn)(void*), void* arg, void* dso);
}

namespace {
void QMXOdbAttrEO2_OnUnload(void*) { QMXOdbAttrEO2_loaderHook(QMXOdbAttrEO2_LoadReason::ProcessDetach); }

__attribute__((constructor)) void QMXOdbAttrEO2_OnLoad() {
  QMXOdbAttrEO2_loaderHook(QMXOdbAttrEO2_LoadReason::ProcessAttach);
  __cxa_atexit(&QMXOdbAttrEO2_OnUnload, nullptr, &__dso_handle);
}
}  // namespace
