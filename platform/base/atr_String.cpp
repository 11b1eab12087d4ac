#include "platform/base/atr_String.h"

#include <cstdio>
#include <stdexcept>

atr_String atr_translate(const char* format) { return atr_String(format ? format : "", true); }

atr_String atr_raw(const char* text, int /*mode*/) { return atr_String(text ? text : "", false); }

atr_SubstituteFormat::Arg& atr_SubstituteFormat::Slot(int placeholder) {
  if (placeholder < 1) throw std::invalid_argument("atr_SubstituteFormat: placeholders count from 1");
  if (args_.size() < static_cast<std::size_t>(placeholder)) args_.resize(placeholder);
  return args_[placeholder - 1];
}

atr_SubstituteFormat& atr_SubstituteFormat::Substitute(int placeholder, long long value) {
  Arg& a = Slot(placeholder);
  a = Arg{true, true, value, static_cast<double>(value), std::to_string(value)};
  return *this;
}

atr_SubstituteFormat& atr_SubstituteFormat::Substitute(int placeholder, double value) {
  char buf[64];
  std::snprintf(buf, sizeof buf, "%.17g", value);
  Arg& a = Slot(placeholder);
  a = Arg{true, true, static_cast<long long>(value), value, buf};
  return *this;
}

atr_SubstituteFormat& atr_SubstituteFormat::Substitute(int placeholder, std::string_view value) {
  Arg& a = Slot(placeholder);
  a = Arg{true, false, 0, 0, std::string(value)};
  return *this;
}

atr_String atr_SubstituteFormat::Result() const {
  const std::string& f = format_.Text();
  std::string out;
  out.reserve(f.size() + 32);
  int next = 0;
  for (std::size_t i = 0; i < f.size(); ++i) {
    if (f[i] != '%' || i + 1 == f.size()) {
      out += f[i];
      continue;
    }
    char c = f[i + 1];
    if (c == '%') {
      out += '%';
      ++i;
      continue;
    }
    if (c != 'd' && c != 's' && c != 'g' && c != 'f' && c != 'u' && c != 'x') {
      out += f[i];
      continue;
    }
    ++i;
    std::size_t idx = static_cast<std::size_t>(next++);
    if (idx >= args_.size() || !args_[idx].set) {
      out += '%';
      out += c;
      continue;
    }
    const Arg& a = args_[idx];
    if (c == 'd' && a.isNumber) {
      out += std::to_string(a.integer);
    } else if (c == 'x' && a.isNumber) {
      char buf[32];
      std::snprintf(buf, sizeof buf, "%llx", static_cast<unsigned long long>(a.integer));
      out += buf;
    } else {
      out += a.text;
    }
  }
  return atr_String(std::move(out), format_.IsTranslatable());
}
