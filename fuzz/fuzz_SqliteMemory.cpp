#include "fuzz/fuzz_SqliteMemory.h"

#include <sanitizer/asan_interface.h>
#include <sqlite3.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <mutex>
#include <vector>

#include "fuzz/fuzz_Common.h"

namespace {

// The sanitizer's own calls: this file is built without the sanitizers (so that the allocator is
// not itself instrumented), where the header's macros would do nothing.
void Poison(const void* p, std::size_t n) { __asan_poison_memory_region(p, n); }
void Unpoison(const void* p, std::size_t n) { __asan_unpoison_memory_region(p, n); }

// Every block starts with a header that holds its usable size; the header stays poisoned, so it
// is the redzone of the block before it.
constexpr std::size_t kHeader = 16;
constexpr std::size_t kSmallest = 32;        // the smallest class, header included
constexpr std::size_t kLargest = 64 * 1024;  // larger blocks go to the sanitizer's own allocator
constexpr int kClasses = 12;                 // 32 B .. 64 KiB, powers of two
constexpr std::size_t kChunk = 1024 * 1024;
constexpr std::size_t kQueued = 4096;  // freed blocks held back before reuse

struct State {
  std::mutex lock;
  std::array<std::vector<unsigned char*>, kClasses> free;
  struct Queued {
    unsigned char* block;
    int sizeClass;  // kept here: the block itself is cold by the time it leaves the queue
  };
  std::vector<Queued> queue = std::vector<Queued>(kQueued, Queued{nullptr, 0});
  std::size_t next = 0;
  unsigned char* chunk = nullptr;
  std::size_t left = 0;
};

State& Shared() {
  static State* const s = new State;  // never destroyed: SQLite may free after the statics are gone
  return *s;
}

int ClassOf(std::size_t whole) {
  int c = 0;
  for (std::size_t size = kSmallest; size < whole; size <<= 1) ++c;
  return c;
}
std::size_t ClassSize(int c) { return kSmallest << c; }

std::size_t& UsableOf(unsigned char* block) { return *reinterpret_cast<std::size_t*>(block); }

void* Malloc(int n) {
  if (n <= 0) return nullptr;
  const std::size_t usable = (static_cast<std::size_t>(n) + 7) & ~std::size_t{7};
  const std::size_t whole = usable + kHeader;
  unsigned char* block;
  if (whole > kLargest) {
    block = static_cast<unsigned char*>(std::malloc(whole));
    if (!block) return nullptr;
  } else {
    State& s = Shared();
    const std::lock_guard<std::mutex> hold(s.lock);
    const int c = ClassOf(whole);
    if (auto& list = s.free[static_cast<std::size_t>(c)]; !list.empty()) {
      block = list.back();
      list.pop_back();
    } else {
      const std::size_t size = ClassSize(c);
      if (s.left < size) {
        s.chunk = static_cast<unsigned char*>(std::malloc(kChunk));  // kept for the whole run
        if (!s.chunk) return nullptr;
        Poison(s.chunk, kChunk);
        s.left = kChunk;
      }
      block = s.chunk;
      s.chunk += size;
      s.left -= size;
    }
    Unpoison(block, kHeader);
  }
  UsableOf(block) = usable;
  Poison(block, kHeader);
  Unpoison(block + kHeader, usable);
  return block + kHeader;
}

std::size_t Usable(unsigned char* block) {
  Unpoison(block, kHeader);
  const std::size_t usable = UsableOf(block);
  Poison(block, kHeader);
  return usable;
}

void Free(void* p) {
  if (!p) return;
  unsigned char* block = static_cast<unsigned char*>(p) - kHeader;
  const std::size_t whole = Usable(block) + kHeader;
  if (whole > kLargest) {
    std::free(block);
    return;
  }
  Poison(block, whole);
  State& s = Shared();
  const std::lock_guard<std::mutex> hold(s.lock);
  State::Queued& slot = s.queue[s.next];
  s.next = (s.next + 1) % kQueued;
  if (slot.block) s.free[static_cast<std::size_t>(slot.sizeClass)].push_back(slot.block);
  slot = State::Queued{block, ClassOf(whole)};
}

int Size(void* p) { return p ? static_cast<int>(Usable(static_cast<unsigned char*>(p) - kHeader)) : 0; }

void* Realloc(void* p, int n) {
  if (!p) return Malloc(n);
  const int had = Size(p);
  if (n <= had) {
    // Shrinking in place: the bytes past the new size become unreachable. A large block keeps
    // its size, so that it goes back to the allocator it came from.
    if (static_cast<std::size_t>(had) + kHeader > kLargest) return p;
    const std::size_t usable = (static_cast<std::size_t>(n) + 7) & ~std::size_t{7};
    unsigned char* block = static_cast<unsigned char*>(p) - kHeader;
    Unpoison(block, kHeader);
    UsableOf(block) = usable;
    Poison(block, kHeader);
    Poison(static_cast<unsigned char*>(p) + usable, static_cast<std::size_t>(had) - usable);
    return p;
  }
  void* q = Malloc(n);
  if (!q) return nullptr;
  std::memcpy(q, p, static_cast<std::size_t>(had));
  Free(p);
  return q;
}

int Roundup(int n) { return (n + 7) & ~7; }
int Init(void*) { return SQLITE_OK; }
void Shutdown(void*) {}

}  // namespace

void fuzz_UseOwnSqliteMemory() {
  static const sqlite3_mem_methods methods = {Malloc, Free, Realloc, Size, Roundup, Init, Shutdown, nullptr};
  sqlite3_shutdown();
  if (sqlite3_config(SQLITE_CONFIG_MALLOC, &methods) != SQLITE_OK || sqlite3_initialize() != SQLITE_OK)
    fuzz_Fail("SQLite did not take the fuzz targets' allocator");
}
