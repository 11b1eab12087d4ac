#pragma once
// A progress line on standard error for long work, shown only when standard error is a terminal
// and the work has lasted a second (ODBATTR_PROGRESS_DELAY_MS sets another delay); redrawn a few
// times a second and cleared when done. A watcher thread draws it, so that a stage that reports
// nothing while it works (opening a large file) shows too.
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <mutex>
#include <string>
#include <thread>

namespace odbattr {

// True when standard error is a terminal: progress and summaries are for a person watching.
bool StandardErrorIsTerminal();

class Progress {
 public:
  explicit Progress(std::string what);
  ~Progress();
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;

  // A count of work done ("running script.jsonl: 20000 commands").
  void Update(std::size_t done, const char* unit);
  // A stage of work whose progress cannot be counted.
  void Stage(const std::string& text);

 private:
  void Watch();
  std::string Text();
  void Clear();

  std::string what_;
  std::mutex mutex_;
  std::condition_variable wake_;
  bool stop_ = false;
  bool shown_ = false;
  std::string stage_;
  const char* unit_ = "";
  std::atomic<std::size_t> done_{0};
  std::atomic<bool> counted_{false};
  std::thread watcher_;
};

}  // namespace odbattr
