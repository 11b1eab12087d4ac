#include "platform/base/cow_String.h"

#include <atomic>
#include <cstring>
#include <ostream>

#include "platform/base/bas_Alloc.h"


cow_String::cow_String(const char* s) : cow_String(std::string_view(s ? s : "")) {}

cow_String::cow_String(std::string_view s) {
  if (s.empty()) return;
  void* mem = s.size() < 32 ? mem_OperatorNewTinyThrow(sizeof(Body) + s.size() + 1)
                            : mem_OperatorNewThrow(sizeof(Body) + s.size() + 1);
  body_ = ::new (mem) Body{{1}, s.size()};
  std::memcpy(body_->Data(), s.data(), s.size());
  body_->Data()[s.size()] = '\0';
}

void cow_String::Free(Body* body) noexcept {
  body->~Body();
  mem_Free(body);
}

int cow_String::UseCount() const noexcept {
  return body_ ? body_->refs.load(std::memory_order_relaxed) : 0;
}

namespace {
bool IsDigit(char c) { return c >= '0' && c <= '9'; }
}  // namespace

int cow_NaturalCompare(std::string_view a, std::string_view b) noexcept {
  // Keys of one repository mostly share a prefix ("Part-1", "Part-2"): skip it, back to the start
  // of the run of digits it ends in, since the bytes before that compare equal either way.
  std::size_t same = 0;
  const std::size_t shorter = a.size() < b.size() ? a.size() : b.size();
  while (same < shorter && a[same] == b[same]) ++same;
  while (same > 0 && IsDigit(a[same - 1])) --same;
  std::size_t i = same, j = same;
  while (i < a.size() && j < b.size()) {
    if (IsDigit(a[i]) && IsDigit(b[j])) {
      std::size_t si = i, sj = j;
      while (si < a.size() && a[si] == '0') ++si;  // leading zeros do not change the number
      while (sj < b.size() && b[sj] == '0') ++sj;
      std::size_t ei = si, ej = sj;
      while (ei < a.size() && IsDigit(a[ei])) ++ei;
      while (ej < b.size() && IsDigit(b[ej])) ++ej;
      if (ei - si != ej - sj) return ei - si < ej - sj ? -1 : 1;
      // Runs of equal length: the first differing digit decides (a short loop, not a call).
      for (std::size_t k = 0; k < ei - si; ++k)
        if (a[si + k] != b[sj + k]) return a[si + k] < b[sj + k] ? -1 : 1;
      i = ei;
      j = ej;
      continue;
    }
    if (a[i] != b[j]) return static_cast<unsigned char>(a[i]) < static_cast<unsigned char>(b[j]) ? -1 : 1;
    ++i;
    ++j;
  }
  if (i < a.size() || j < b.size()) return i < a.size() ? 1 : -1;
  int c = a.compare(b);  // "a01" and "a1" are naturally equal; keep the order total
  return c < 0 ? -1 : (c > 0 ? 1 : 0);
}

std::ostream& operator<<(std::ostream& os, const cow_String& s) { return os << s.view(); }
