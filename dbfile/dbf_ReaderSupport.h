#pragma once
// What the parts of the file reader share: the refusal of a damaged file, texts of result columns
// and values, and stored uids. Only the reader's sources include this header.
#include <sqlite3.h>

#include <cstdint>
#include <string>
#include <string_view>

#include "dbfile/dbf_Reader.h"
#include "platform/base/nex_Exception.h"

[[noreturn]] inline void dbf_Damaged(const std::string& why) { nex_ThrowCmd("the file is damaged (" + why + ")"); }

[[noreturn]] inline void dbf_DamagedField(const dbf_ReadTable& t, std::int64_t oid, const std::string& field, const char* what) {
  dbf_Damaged("the field \"" + field + "\" of row " + std::to_string(oid) + " of class " + t.className + " holds " + what);
}

inline std::string_view dbf_Text(sqlite3_stmt* s, int col) {
  const auto* p = reinterpret_cast<const char*>(sqlite3_column_text(s, col));
  return p ? std::string_view(p, static_cast<std::size_t>(sqlite3_column_bytes(s, col))) : std::string_view();
}

inline std::string_view dbf_Text(sqlite3_value* v) {
  const auto* p = reinterpret_cast<const char*>(sqlite3_value_text(v));
  return p ? std::string_view(p, static_cast<std::size_t>(sqlite3_value_bytes(v))) : std::string_view();
}

// The value of each lower-case hex digit, 0xFF for every other byte.
struct dbf_HexTable {
  unsigned char value[256];
  constexpr dbf_HexTable() : value() {
    for (int c = 0; c < 256; ++c) value[c] = 0xFF;
    for (int c = '0'; c <= '9'; ++c) value[c] = static_cast<unsigned char>(c - '0');
    for (int c = 'a'; c <= 'f'; ++c) value[c] = static_cast<unsigned char>(c - 'a' + 10);
  }
};
inline constexpr dbf_HexTable dbf_kHex;

// A uid as its 32 lower-case hex digits; one test for a bad digit at the end, not one per digit,
// and the two halves built side by side in registers.
inline bool dbf_ParseUid(std::string_view t, cls_Uid& out) {
  if (t.size() != 32) return false;
  const auto* p = reinterpret_cast<const unsigned char*>(t.data());
  std::uint64_t high = 0, low = 0;
  unsigned bad = 0;
  for (std::size_t i = 0; i < 16; ++i) {
    const unsigned h = dbf_kHex.value[p[i]], l = dbf_kHex.value[p[16 + i]];
    bad |= h | l;
    high = (high << 4) | (h & 0xF);
    low = (low << 4) | (l & 0xF);
  }
  if (bad & 0xF0) return false;
  out = cls_Uid(high, low);
  return true;
}

[[noreturn]] inline void dbf_NotNumbered(const dbf_ReadTable& t) {
  dbf_Damaged("the rows of class " + t.className + " are not " + std::to_string(t.rows) + " rows numbered from 1 up");
}

