#include "platform/base/bas_Alloc.h"

#include <cstdlib>

void* mem_OperatorNewThrow(std::size_t size) {
  void* p = std::malloc(size ? size : 1);
  if (!p) throw std::bad_alloc();
  return p;
}

void* mem_OperatorNewTinyThrow(std::size_t size) { return mem_OperatorNewThrow(size); }

void mem_Free(void* p) noexcept { std::free(p); }
