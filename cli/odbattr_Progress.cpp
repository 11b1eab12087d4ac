#include "cli/odbattr_Progress.h"

#include <unistd.h>

#include <cstdio>
#include <cstdlib>

namespace odbattr {

namespace {
constexpr auto kProgressInterval = std::chrono::milliseconds(200);  // redraws, five a second

std::chrono::milliseconds ProgressDelay() {
  // Short work shows nothing; a test sets the delay to show progress of short work.
  if (const char* ms = std::getenv("ODBATTR_PROGRESS_DELAY_MS"); ms && *ms) {
    char* end = nullptr;
    const long v = std::strtol(ms, &end, 10);
    if (*end == '\0' && v >= 0) return std::chrono::milliseconds(v);
  }
  return std::chrono::milliseconds(1000);
}
}  // namespace

bool StandardErrorIsTerminal() { return ::isatty(STDERR_FILENO) == 1; }

Progress::Progress(std::string what) : what_(std::move(what)) {
  if (StandardErrorIsTerminal()) watcher_ = std::thread([this] { Watch(); });
}

Progress::~Progress() {
  if (!watcher_.joinable()) return;
  {
    std::lock_guard lock(mutex_);
    stop_ = true;
  }
  wake_.notify_one();
  watcher_.join();
  Clear();
}

void Progress::Update(std::size_t done, const char* unit) {
  if (!watcher_.joinable()) return;
  if (!counted_.load(std::memory_order_relaxed)) {
    std::lock_guard lock(mutex_);
    unit_ = unit;
    counted_ = true;
  }
  done_.store(done, std::memory_order_relaxed);
}

void Progress::Stage(const std::string& text) {
  if (!watcher_.joinable()) return;
  std::lock_guard lock(mutex_);
  stage_ = text;
}

std::string Progress::Text() {
  std::string text = what_;
  if (!stage_.empty()) text += ": " + stage_;
  if (counted_) text += ": " + std::to_string(done_.load(std::memory_order_relaxed)) + " " + unit_;
  return text;
}

void Progress::Watch() {
  std::unique_lock lock(mutex_);
  if (wake_.wait_for(lock, ProgressDelay(), [this] { return stop_; })) return;
  do {
    std::fprintf(stderr, "\r\033[K%s", Text().c_str());
    std::fflush(stderr);
    shown_ = true;
  } while (!wake_.wait_for(lock, kProgressInterval, [this] { return stop_; }));
}

void Progress::Clear() {
  if (!shown_) return;
  std::fprintf(stderr, "\r\033[K");
  std::fflush(stderr);
  shown_ = false;
}

}  // namespace odbattr
