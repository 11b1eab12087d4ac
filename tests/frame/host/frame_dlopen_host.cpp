// A host that loads the attribute library at run time, as a plug-in loader would: dlopen, the
// counted entry points found by name, then a normal exit or a dlclose. Not linked to the library.
// Usage: frame_dlopen_host <library file> <script>, where the script is a word of letters run in
// order: o dlopen, i initialize, f finalize, c dlclose. Prints the library count after each step,
// "exit" just before returning from main, and, from an exit handler registered before the first
// dlopen (so run after every handler the library registers), the library count once the unload at
// exit has run, when the library is still open then.
#include <dlfcn.h>

#include <cstdio>
#include <cstdlib>
#include <string>

namespace {
using Entry = void (*)(int&);
using Count = int (*)();

// The open library's count, for the exit handler; null while the library is closed.
int (*openCount)() = nullptr;

void PrintCountAtExit() {
  if (openCount) std::printf("at exit %d\n", openCount());
  std::fflush(stdout);
}

template <class F>
F Find(void* lib, const char* name) {
  void* f = dlsym(lib, name);
  if (!f) std::fprintf(stderr, "no symbol %s: %s\n", name, dlerror());
  return reinterpret_cast<F>(f);
}
}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::fprintf(stderr, "usage: %s <library> <script>\n", argv[0]);
    return 2;
  }
  void* lib = nullptr;
  int tally = 0;
  std::atexit(&PrintCountAtExit);
  for (char step : std::string(argv[2])) {
    if (step == 'o') {
      lib = dlopen(argv[1], RTLD_NOW | RTLD_LOCAL);
      if (!lib) {
        std::fprintf(stderr, "dlopen: %s\n", dlerror());
        return 3;
      }
    } else if (step == 'c') {
      if (dlclose(lib) != 0) return 4;
      lib = nullptr;
      openCount = nullptr;
      std::printf("c\n");
      continue;
    } else if (step == 'i' || step == 'f') {
      // The two main entry points have C++ linkage; these are their names as the compiler spells them.
      Entry e = Find<Entry>(lib, step == 'i' ? "_Z24QMXOdbAttrEO2_initializeRi" : "_Z22QMXOdbAttrEO2_finalizeRi");
      if (!e) return 5;
      e(tally);
    } else {
      return 2;
    }
    Count count = Find<Count>(lib, "_Z26QMXOdbAttrEO2_libraryCountv");
    if (!count) return 5;
    openCount = count;
    std::printf("%c %d\n", step, count());
  }
  std::printf("exit\n");
  std::fflush(stdout);
  return 0;
}
