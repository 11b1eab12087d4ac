#include "platform/persist/cls_Uid.h"

#include <array>
#include <atomic>
#include <chrono>
#include <random>

#include "platform/base/nex_Exception.h"

namespace {
// Each thread draws from its own generator, seeded from the system's entropy, the clock and the
// thread, so that uids of different processes and threads do not collide in practice.
std::uint64_t Draw() {
  thread_local std::mt19937_64 gen = [] {
    std::random_device rd;
    static std::atomic<std::uint64_t> salt{0};
    std::seed_seq seq{rd(), rd(), rd(), rd(),
                      static_cast<unsigned>(std::chrono::high_resolution_clock::now().time_since_epoch().count()),
                      static_cast<unsigned>(salt.fetch_add(1))};
    return std::mt19937_64(seq);
  }();
  return gen();
}

// The value of each byte as a hexadecimal digit, 0xFF for any other byte: a uid is read with one
// load per digit and one test at the end, as every stored row carries one.
constexpr std::array<std::uint8_t, 256> kDigit = [] {
  std::array<std::uint8_t, 256> t{};
  for (auto& v : t) v = 0xFF;
  for (int c = 0; c < 10; ++c) t['0' + c] = static_cast<std::uint8_t>(c);
  for (int c = 0; c < 6; ++c) {
    t['a' + c] = static_cast<std::uint8_t>(10 + c);
    t['A' + c] = static_cast<std::uint8_t>(10 + c);
  }
  return t;
}();

// Sixteen digits; `bad` collects the high bits that only a byte that is no digit has.
std::uint64_t Half(const char* p, unsigned& bad) {
  std::uint64_t v = 0;
  for (int i = 0; i < 16; ++i) {
    const unsigned d = kDigit[static_cast<unsigned char>(p[i])];
    bad |= d;
    v = (v << 4) | (d & 0xF);
  }
  return v;
}
}  // namespace

cls_Uid::cls_Uid() : hi_(Draw()), lo_(Draw()) {
  if (hi_ == 0 && lo_ == 0) lo_ = 1;  // the null uid is never handed out
}

std::string cls_Uid::ToString() const {
  static const char* kHex = "0123456789abcdef";
  std::string s(32, '0');
  for (int i = 0; i < 16; ++i) {
    s[15 - i] = kHex[(hi_ >> (4 * i)) & 0xF];
    s[31 - i] = kHex[(lo_ >> (4 * i)) & 0xF];
  }
  return s;
}

cls_Uid cls_Uid::FromString(std::string_view text) {
  unsigned bad = 0;
  if (text.size() == 32) {
    const std::uint64_t hi = Half(text.data(), bad), lo = Half(text.data() + 16, bad);
    if (!(bad & 0xF0)) return cls_Uid(hi, lo);
  }
  nex_ThrowCmd("Invalid uid \"" + std::string(text) + "\": 32 hexadecimal digits expected");
}
