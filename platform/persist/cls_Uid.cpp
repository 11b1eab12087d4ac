#include "platform/persist/cls_Uid.h"

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
  if (text.size() != 32) nex_ThrowCmd("Invalid uid \"" + std::string(text) + "\": 32 hexadecimal digits expected");
  std::uint64_t parts[2] = {0, 0};
  for (std::size_t i = 0; i < 32; ++i) {
    char c = text[i];
    int d = c >= '0' && c <= '9' ? c - '0' : c >= 'a' && c <= 'f' ? c - 'a' + 10 : c >= 'A' && c <= 'F' ? c - 'A' + 10 : -1;
    if (d < 0) nex_ThrowCmd("Invalid uid \"" + std::string(text) + "\": 32 hexadecimal digits expected");
    parts[i / 16] = (parts[i / 16] << 4) | static_cast<std::uint64_t>(d);
  }
  return cls_Uid(parts[0], parts[1]);
}
