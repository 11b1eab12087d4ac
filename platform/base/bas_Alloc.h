#pragma once
// The framework allocator: every allocation of the library goes through here.
#include <cstddef>
#include <new>
#include <utility>

void* mem_OperatorNewThrow(std::size_t size);
// Small objects (handles, bodies of short strings); same contract as mem_OperatorNewThrow.
void* mem_OperatorNewTinyThrow(std::size_t size);
void mem_Free(void* p) noexcept;

// Constructs a T on framework memory; release with mem_Delete.
template <class T, class... A>
T* mem_New(A&&... args) {
  void* p = mem_OperatorNewThrow(sizeof(T));
  try {
    return ::new (p) T(std::forward<A>(args)...);
  } catch (...) {
    mem_Free(p);
    throw;
  }
}

template <class T>
void mem_Delete(T* p) noexcept {
  if (p) {
    p->~T();
    mem_Free(p);
  }
}

// A base that routes new and delete of a class through the framework allocator, so that objects
// made with new, mem_New or a class's Copy() are all released the same way.
struct mem_Allocated {
  static void* operator new(std::size_t n) { return mem_OperatorNewThrow(n); }
  static void operator delete(void* p) noexcept { mem_Free(p); }
};
