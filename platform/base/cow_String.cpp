#include "platform/base/cow_String.h"

#include <atomic>
#include <cstdint>
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
bool IsDigit(char c) { return static_cast<unsigned char>(c - '0') < 10; }

// Natural order from `from`, a place where both strings hold the same bytes before it and no run
// of digits crosses it.
int NaturalFrom(std::string_view a, std::string_view b, std::size_t from) noexcept {
  std::size_t i = from, j = from;
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
}  // namespace

int cow_NaturalCompare(std::string_view a, std::string_view b) noexcept {
  // Keys of one repository mostly share a prefix ("Part-1", "Part-2"): find the first byte that
  // differs, eight bytes at a time over the shared part.
  const std::size_t shorter = a.size() < b.size() ? a.size() : b.size();
  std::size_t p = 0;
  for (std::uint64_t x, y; p + 8 <= shorter; p += 8) {
    std::memcpy(&x, a.data() + p, 8);
    std::memcpy(&y, b.data() + p, 8);
    if (x != y) break;
  }
  while (p < shorter && a[p] == b[p]) ++p;
  if (p == a.size() && p == b.size()) return 0;
  // Back to the start of the run of digits the shared part ends in: the bytes before it decide
  // nothing.
  std::size_t s = p;
  while (s > 0 && IsDigit(a[s - 1])) --s;
  // The byte at p, or the end of either string, deciding alone.
  auto byteAtP = [&] {
    if (p == a.size()) return -1;
    if (p == b.size()) return 1;
    return static_cast<unsigned char>(a[p]) < static_cast<unsigned char>(b[p]) ? -1 : 1;
  };
  const bool inRun = s < p || (p < shorter && IsDigit(a[p]) && IsDigit(b[p]));
  if (!inRun) return byteAtP();  // the first difference lies outside any run of digits
  if (a[s] != '0' && b[s] != '0') {
    // Numbers without leading zeros: the longer run is the greater, and between runs of one
    // length the first differing digit decides. Runs that end together, equal, leave the
    // difference to what follows them.
    std::size_t ea = p, eb = p;
    while (ea < a.size() && IsDigit(a[ea])) ++ea;
    while (eb < b.size() && IsDigit(b[eb])) ++eb;
    if (ea != eb) return ea < eb ? -1 : 1;
    return p < ea ? (a[p] < b[p] ? -1 : 1) : byteAtP();
  }
  return NaturalFrom(a, b, s);  // leading zeros: the general walk
}

std::ostream& operator<<(std::ostream& os, const cow_String& s) { return os << s.view(); }
