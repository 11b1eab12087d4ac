#pragma once
// The framework's base exception: a message and the source position it was thrown from.
#include <exception>
#include <string>

// Default visibility and an out-of-line destructor: the type information then lives in the library
// alone, so that a catch in a module built with hidden visibility (the Python module) matches it.
class __attribute__((visibility("default"))) QMXBasException : public std::exception {
 public:
  QMXBasException() = default;
  explicit QMXBasException(std::string message) : message_(std::move(message)) {}
  QMXBasException(const QMXBasException&) = default;
  QMXBasException& operator=(const QMXBasException&) = default;
  ~QMXBasException() override;

  // Records the source position and throws this exception as its most derived type.
  [[noreturn]] void Throw(const char* file, int line);

  const char* what() const noexcept override { return message_.c_str(); }
  const std::string& Message() const noexcept { return message_; }
  const char* File() const noexcept { return file_.c_str(); }
  int Line() const noexcept { return line_; }
  // The family name the command layer reports ("PrimException", "CmdException", ...).
  virtual const char* Kind() const noexcept { return "BasException"; }

 protected:
  [[noreturn]] virtual void Raise() const { throw *this; }

 private:
  std::string message_;
  std::string file_;
  int line_ = 0;
};
