#pragma once
// A progress line on standard error for long work, shown only when standard error is a terminal
// and the work has lasted long enough to be worth it; redrawn at most a few times a second and
// cleared when done.
#include <chrono>
#include <cstddef>
#include <string>

namespace odbattr {

class Progress {
 public:
  explicit Progress(std::string what);
  ~Progress();
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;

  void Update(std::size_t done);
  // Shows a stage of work whose progress cannot be counted.
  void Stage(const std::string& text);

 private:
  void Draw(const std::string& text);
  void Clear();

  std::string what_;
  bool terminal_;
  bool shown_ = false;
  std::chrono::steady_clock::time_point start_;
  std::chrono::steady_clock::time_point last_;
};

}  // namespace odbattr
