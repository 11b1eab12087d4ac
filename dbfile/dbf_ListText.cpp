#include "dbfile/dbf_ListText.h"

#include <charconv>
#include <cmath>
#include <cstring>
#include <limits>

void dbf_AppendInt(std::string& out, std::int64_t v) {
  char buf[24];
  auto r = std::to_chars(buf, buf + sizeof buf, v);
  out.append(buf, r.ptr);
}

void dbf_AppendDouble(std::string& out, double v) {
  if (std::isnan(v)) {
    out += "null";
  } else if (std::isinf(v)) {
    out += v > 0 ? "9e999" : "-9e999";
  } else {
    char buf[32];
    auto r = std::to_chars(buf, buf + sizeof buf, v);
    out.append(buf, r.ptr);
  }
}

void dbf_AppendJsonString(std::string& out, std::string_view s) {
  static const char* kHex = "0123456789abcdef";
  out += '"';
  for (char ch : s) {
    auto c = static_cast<unsigned char>(ch);
    switch (c) {
      case '"': out += "\\\""; break;
      case '\\': out += "\\\\"; break;
      case '\n': out += "\\n"; break;
      case '\r': out += "\\r"; break;
      case '\t': out += "\\t"; break;
      case '\b': out += "\\b"; break;
      case '\f': out += "\\f"; break;
      default:
        if (c < 0x20) {
          out += "\\u00";
          out += kHex[c >> 4];
          out += kHex[c & 0xf];
        } else {
          out += ch;
        }
    }
  }
  out += '"';
}

void dbf_AppendRef(std::string& out, const dbf_Ref& ref) {
  if (ref.oid == 0) {
    out += "null";
    return;
  }
  out += '[';
  dbf_AppendInt(out, ref.oid);
  out += ',';
  dbf_AppendInt(out, ref.classId);
  out += ']';
}

namespace {
template <class T, class F>
void AppendList(std::string& out, const std::vector<T>& v, F each) {
  out += '[';
  for (std::size_t i = 0; i < v.size(); ++i) {
    if (i) out += ',';
    each(v[i]);
  }
  out += ']';
}
}  // namespace

void dbf_AppendIntList(std::string& out, const std::vector<std::int32_t>& v) {
  AppendList(out, v, [&](std::int32_t x) { dbf_AppendInt(out, x); });
}
void dbf_AppendDoubleList(std::string& out, const std::vector<double>& v) {
  AppendList(out, v, [&](double x) { dbf_AppendDouble(out, x); });
}
void dbf_AppendBoolList(std::string& out, const std::vector<bool>& v) {
  out += '[';
  for (std::size_t i = 0; i < v.size(); ++i) out += i ? (v[i] ? ",true" : ",false") : (v[i] ? "true" : "false");
  out += ']';
}
void dbf_AppendTextList(std::string& out, const std::vector<cow_String>& v) {
  AppendList(out, v, [&](const cow_String& x) { dbf_AppendJsonString(out, x.view()); });
}

// --- parsing ----------------------------------------------------------------------------------

namespace {

class Cursor {
 public:
  explicit Cursor(std::string_view t) : p_(t.data()), end_(t.data() + t.size()) {}
  void Skip() {
    while (p_ != end_ && (*p_ == ' ' || *p_ == '\n' || *p_ == '\r' || *p_ == '\t')) ++p_;
  }
  bool Eat(char c) {
    Skip();
    if (p_ == end_ || *p_ != c) return false;
    ++p_;
    return true;
  }
  bool EatWord(std::string_view w) {
    Skip();
    if (static_cast<std::size_t>(end_ - p_) < w.size() || std::string_view(p_, w.size()) != w) return false;
    p_ += w.size();
    return true;
  }
  bool AtEnd() {
    Skip();
    return p_ == end_;
  }
  // A JSON number token: an optional minus, digits, fraction and exponent.
  std::string_view NumberToken() {
    Skip();
    const char* s = p_;
    if (p_ != end_ && *p_ == '-') ++p_;
    while (p_ != end_ && ((*p_ >= '0' && *p_ <= '9') || *p_ == '.' || *p_ == 'e' || *p_ == 'E' || *p_ == '+' ||
                          (*p_ == '-' && (p_[-1] == 'e' || p_[-1] == 'E'))))
      ++p_;
    return std::string_view(s, static_cast<std::size_t>(p_ - s));
  }
  // A JSON integer: digits after an optional minus; a fraction, an exponent or a value outside
  // 64 bits is refused. Read digit by digit: lists of references hold two integers an element.
  bool Int(std::int64_t& v) {
    Skip();
    const bool negative = p_ != end_ && *p_ == '-';
    if (negative) ++p_;
    const char* first = p_;
    std::uint64_t magnitude = 0;
    const std::uint64_t limit = negative ? std::uint64_t(INT64_MAX) + 1 : std::uint64_t(INT64_MAX);
    for (; p_ != end_ && *p_ >= '0' && *p_ <= '9'; ++p_) {
      const auto digit = static_cast<std::uint64_t>(*p_ - '0');
      if (magnitude > (limit - digit) / 10) return false;
      magnitude = magnitude * 10 + digit;
    }
    if (p_ == first || (p_ != end_ && (*p_ == '.' || *p_ == 'e' || *p_ == 'E'))) return false;
    v = negative ? static_cast<std::int64_t>(0 - magnitude) : static_cast<std::int64_t>(magnitude);
    return true;
  }
  bool Double(double& v) {
    if (EatWord("null")) {
      v = std::numeric_limits<double>::quiet_NaN();
      return true;
    }
    std::string_view t = NumberToken();
    if (t.empty() || (t[0] != '-' && (t[0] < '0' || t[0] > '9'))) return false;
    if (t == "9e999" || t == "-9e999") {
      v = t[0] == '-' ? -HUGE_VAL : HUGE_VAL;
      return true;
    }
    auto r = std::from_chars(t.data(), t.data() + t.size(), v);
    return r.ec == std::errc() && r.ptr == t.data() + t.size();
  }
  // A string without escapes, taken as it stands; false (consuming nothing) otherwise.
  bool PlainString(std::string_view& s) {
    Skip();
    if (p_ == end_ || *p_ != '"') return false;
    for (const char* q = p_ + 1; q != end_; ++q) {
      if (*q == '\\') return false;
      if (*q == '"') {
        s = std::string_view(p_ + 1, static_cast<std::size_t>(q - p_ - 1));
        p_ = q + 1;
        return true;
      }
    }
    return false;
  }
  bool String(std::string& s) {
    if (!Eat('"')) return false;
    s.clear();
    while (p_ != end_ && *p_ != '"') {
      if (*p_ != '\\') {
        s += *p_++;
        continue;
      }
      if (++p_ == end_) return false;
      switch (*p_++) {
        case '"': s += '"'; break;
        case '\\': s += '\\'; break;
        case '/': s += '/'; break;
        case 'b': s += '\b'; break;
        case 'f': s += '\f'; break;
        case 'n': s += '\n'; break;
        case 'r': s += '\r'; break;
        case 't': s += '\t'; break;
        case 'u': {
          std::uint32_t cp;
          if (!Hex4(cp)) return false;
          if (cp >= 0xD800 && cp < 0xDC00) {
            std::uint32_t lo;
            if (end_ - p_ < 2 || p_[0] != '\\' || p_[1] != 'u') return false;
            p_ += 2;
            if (!Hex4(lo) || lo < 0xDC00 || lo >= 0xE000) return false;
            cp = 0x10000 + ((cp - 0xD800) << 10) + (lo - 0xDC00);
          } else if (cp >= 0xDC00 && cp < 0xE000) {
            return false;
          }
          Utf8(cp, s);
          break;
        }
        default: return false;
      }
    }
    if (p_ == end_) return false;
    ++p_;
    return true;
  }

 private:
  bool Hex4(std::uint32_t& v) {
    if (end_ - p_ < 4) return false;
    v = 0;
    for (int i = 0; i < 4; ++i) {
      char c = *p_++;
      v <<= 4;
      if (c >= '0' && c <= '9') v |= static_cast<std::uint32_t>(c - '0');
      else if (c >= 'a' && c <= 'f') v |= static_cast<std::uint32_t>(c - 'a' + 10);
      else if (c >= 'A' && c <= 'F') v |= static_cast<std::uint32_t>(c - 'A' + 10);
      else return false;
    }
    return true;
  }
  static void Utf8(std::uint32_t cp, std::string& s) {
    if (cp < 0x80) {
      s += static_cast<char>(cp);
    } else if (cp < 0x800) {
      s += static_cast<char>(0xC0 | (cp >> 6));
      s += static_cast<char>(0x80 | (cp & 0x3F));
    } else if (cp < 0x10000) {
      s += static_cast<char>(0xE0 | (cp >> 12));
      s += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
      s += static_cast<char>(0x80 | (cp & 0x3F));
    } else {
      s += static_cast<char>(0xF0 | (cp >> 18));
      s += static_cast<char>(0x80 | ((cp >> 12) & 0x3F));
      s += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
      s += static_cast<char>(0x80 | (cp & 0x3F));
    }
  }
  const char* p_;
  const char* end_;
};

// "[" element ("," element)* "]" with nothing after it.
template <class F>
bool ParseList(std::string_view text, F element) {
  Cursor c(text);
  if (!c.Eat('[')) return false;
  if (!c.Eat(']')) {
    do {
      if (!element(c)) return false;
    } while (c.Eat(','));
    if (!c.Eat(']')) return false;
  }
  return c.AtEnd();
}

}  // namespace

bool dbf_ParseIntList(std::string_view text, std::vector<std::int32_t>& out) {
  out.clear();
  return ParseList(text, [&](Cursor& c) {
    std::int64_t v;
    if (!c.Int(v) || v < INT32_MIN || v > INT32_MAX) return false;
    out.push_back(static_cast<std::int32_t>(v));
    return true;
  });
}

bool dbf_ParseDoubleList(std::string_view text, std::vector<double>& out) {
  out.clear();
  return ParseList(text, [&](Cursor& c) {
    double v;
    if (!c.Double(v)) return false;
    out.push_back(v);
    return true;
  });
}

bool dbf_ParseBoolList(std::string_view text, std::vector<bool>& out) {
  out.clear();
  return ParseList(text, [&](Cursor& c) {
    if (c.EatWord("true")) out.push_back(true);
    else if (c.EatWord("false")) out.push_back(false);
    else return false;
    return true;
  });
}

bool dbf_ParseTextList(std::string_view text, std::vector<cow_String>& out) {
  out.clear();
  std::string s;
  return ParseList(text, [&](Cursor& c) {
    std::string_view plain;
    if (c.PlainString(plain)) {
      out.emplace_back(plain);
      return true;
    }
    if (!c.String(s)) return false;
    out.emplace_back(std::string_view(s));
    return true;
  });
}

namespace {

// A list of references as the writer gives it, "[[1,829],null,[2,829]]": no blanks, numbers of
// at most 18 digits. Read in one tight pass; false for anything else, which the general parser
// then accepts or refuses.
bool ParseRefListAsWritten(std::string_view text, std::vector<dbf_Ref>& out) {
  const char* p = text.data();
  const char* const end = p + text.size();
  auto number = [&](std::int64_t& v) {
    const char* first = p;
    std::int64_t x = 0;
    while (p != end && p - first < 18 && static_cast<unsigned char>(*p - '0') < 10) x = x * 10 + (*p++ - '0');
    v = x;
    return p != first;
  };
  if (p == end || *p++ != '[') return false;
  if (p != end && *p == ']') return ++p == end;
  while (true) {
    if (end - p >= 4 && std::memcmp(p, "null", 4) == 0) {
      out.push_back(dbf_Ref{});
      p += 4;
    } else {
      std::int64_t oid, cls;
      if (p == end || *p++ != '[' || !number(oid) || p == end || *p++ != ',' || !number(cls) || p == end || *p++ != ']')
        return false;
      if (oid <= 0 || cls > UINT32_MAX) return false;
      out.push_back(dbf_Ref{oid, static_cast<std::uint32_t>(cls)});
    }
    if (p == end) return false;
    if (*p == ']') return ++p == end;
    if (*p++ != ',') return false;
  }
}

}  // namespace

bool dbf_ParseRefList(std::string_view text, std::vector<dbf_Ref>& out) {
  out.clear();
  if (ParseRefListAsWritten(text, out)) return true;
  out.clear();
  return ParseList(text, [&](Cursor& c) {
    if (c.EatWord("null")) {
      out.push_back(dbf_Ref{});
      return true;
    }
    std::int64_t oid, cls;
    if (!c.Eat('[') || !c.Int(oid) || !c.Eat(',') || !c.Int(cls) || !c.Eat(']')) return false;
    if (oid <= 0 || cls < 0 || cls > UINT32_MAX) return false;
    out.push_back(dbf_Ref{oid, static_cast<std::uint32_t>(cls)});
    return true;
  });
}
