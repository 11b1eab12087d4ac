#include "cli/odbattr_Progress.h"

#include <unistd.h>

#include <cstdio>

namespace odbattr {

namespace {
constexpr auto kDelay = std::chrono::milliseconds(500);     // short work shows nothing
constexpr auto kInterval = std::chrono::milliseconds(100);  // redraws per second, at most ten
}  // namespace

Progress::Progress(std::string what)
    : what_(std::move(what)), terminal_(::isatty(STDERR_FILENO) == 1), start_(std::chrono::steady_clock::now()) {}

Progress::~Progress() { Clear(); }

void Progress::Update(std::size_t done) {
  if (!terminal_) return;
  const auto now = std::chrono::steady_clock::now();
  if (now - start_ < kDelay || (shown_ && now - last_ < kInterval)) return;
  last_ = now;
  Draw(what_ + ": " + std::to_string(done));
}

void Progress::Stage(const std::string& text) {
  if (terminal_) Draw(what_ + ": " + text);
}

void Progress::Draw(const std::string& text) {
  std::fprintf(stderr, "\r\033[K%s", text.c_str());
  std::fflush(stderr);
  shown_ = true;
}

void Progress::Clear() {
  if (!shown_) return;
  std::fprintf(stderr, "\r\033[K");
  std::fflush(stderr);
  shown_ = false;
}

}  // namespace odbattr
