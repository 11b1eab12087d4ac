#pragma once
// The two exception families of the framework: validation failures (nex_PrimException) and
// refusals of the command layer and of enumerations (nex_CmdException).
#include <string>

#include "platform/base/QMXBasException.h"
#include "platform/base/atr_String.h"

template <class S, int N>
class nex_PrimException;
template <class S, int N>
class nex_CmdException;

template <>
class __attribute__((visibility("default"))) nex_PrimException<atr_String, 1> : public QMXBasException {
 public:
  explicit nex_PrimException(const atr_String& message) : QMXBasException(message.Text()), msg_(message) {}
  nex_PrimException(const nex_PrimException&) = default;
  nex_PrimException& operator=(const nex_PrimException&) = default;
  ~nex_PrimException() override;
  const atr_String& GetMessage() const noexcept { return msg_; }
  const char* Kind() const noexcept override { return "PrimException"; }

 protected:
  [[noreturn]] void Raise() const override { throw *this; }

 private:
  atr_String msg_;
};

template <>
class __attribute__((visibility("default"))) nex_CmdException<atr_String, 2> : public QMXBasException {
 public:
  explicit nex_CmdException(const atr_String& message) : QMXBasException(message.Text()), msg_(message) {}
  nex_CmdException(const nex_CmdException&) = default;
  nex_CmdException& operator=(const nex_CmdException&) = default;
  ~nex_CmdException() override;
  const atr_String& GetMessage() const noexcept { return msg_; }
  const char* Kind() const noexcept override { return "CmdException"; }

 protected:
  [[noreturn]] void Raise() const override { throw *this; }

 private:
  atr_String msg_;
};

using nex_PrimError = nex_PrimException<atr_String, 1>;
using nex_CmdError = nex_CmdException<atr_String, 2>;

// Throws a command-layer refusal with a plain (untranslated) message and the caller's position.
// (The builtins rather than std::source_location: clang 14 with libstdc++ 12 lacks the latter.)
[[noreturn]] void nex_ThrowCmd(const std::string& message, const char* file = __builtin_FILE(),
                               int line = __builtin_LINE());
