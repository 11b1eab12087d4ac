#pragma once
// Message strings: translatable or raw text, and numbered placeholder substitution.
#include <string>
#include <string_view>
#include <vector>

#include "platform/base/cow_String.h"

class atr_String {
 public:
  atr_String() = default;
  atr_String(std::string text, bool translatable) : text_(std::move(text)), translatable_(translatable) {}

  const std::string& Text() const noexcept { return text_; }
  const char* c_str() const noexcept { return text_.c_str(); }
  bool IsTranslatable() const noexcept { return translatable_; }
  bool empty() const noexcept { return text_.empty(); }

  friend bool operator==(const atr_String& a, const atr_String& b) { return a.text_ == b.text_; }

 private:
  std::string text_;
  bool translatable_ = false;
};

// A message meant for translation. The library ships no catalogue, so the text stays as given.
atr_String atr_translate(const char* format);
// A message that is never translated; the mode is kept for the framework's signature.
atr_String atr_raw(const char* text, int mode = 0);

// Fills the placeholders of a format in order: the first conversion (%d, %s, %g, %f, %u, %x)
// is placeholder 1, the next placeholder 2, and so on; "%%" stands for a percent sign.
// A placeholder given no value is left as written.
class atr_SubstituteFormat {
 public:
  explicit atr_SubstituteFormat(const atr_String& format) : format_(format) {}

  atr_SubstituteFormat& Substitute(int placeholder, long long value);
  atr_SubstituteFormat& Substitute(int placeholder, int value) { return Substitute(placeholder, static_cast<long long>(value)); }
  atr_SubstituteFormat& Substitute(int placeholder, double value);
  atr_SubstituteFormat& Substitute(int placeholder, std::string_view value);
  atr_SubstituteFormat& Substitute(int placeholder, const char* value) { return Substitute(placeholder, std::string_view(value ? value : "")); }
  atr_SubstituteFormat& Substitute(int placeholder, const cow_String& value) { return Substitute(placeholder, value.view()); }

  atr_String Result() const;

 private:
  struct Arg {
    bool set = false;
    bool isNumber = false;
    long long integer = 0;
    double real = 0;
    std::string text;
  };
  Arg& Slot(int placeholder);

  atr_String format_;
  std::vector<Arg> args_;
};
