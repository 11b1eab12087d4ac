#pragma once
// Enumerated values with permissible strings. Each enumeration supplies a literal table (text,
// value), in the order it lists its literals, ended by a pair whose text is null, found through
// the function omu_LiteralTable(E) by argument-dependent lookup.
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <type_traits>

#include "platform/base/atr_String.h"
#include "platform/base/bas_Alloc.h"
#include "platform/base/cow_Map.h"
#include "platform/base/cow_String.h"

class cls_ReadVisitor;

struct omu_EnumLiteral {
  const char* text;
  std::int64_t value;  // a 32-bit value in a 64-bit slot
};

// Number of literals in a table (the entries before the null text).
constexpr int omu_LiteralCount(const omu_EnumLiteral* table) {
  int n = 0;
  while (table[n].text) ++n;
  return n;
}

class omu_Primitive {
 public:
  static void* operator new(std::size_t n) { return mem_OperatorNewTinyThrow(n); }
  static void operator delete(void* p) noexcept { mem_Free(p); }
  virtual ~omu_Primitive() = default;
  virtual omu_Primitive* Copy() const = 0;
};

class omu_PrimEnumBase : public omu_Primitive {
 public:
  const cow_String& GetString() const noexcept { return str_; }
  const omu_EnumLiteral* Table() const noexcept { return table_; }
  // Every literal with its value.
  cow_Map<cow_String, unsigned> PermissibleValues() const;
  // The literals in table order, separated by ", ".
  cow_String PermissibleValuesAsString() const;
  // The text the string constructor refuses `s` with, for a reader that names where the text
  // came from before it.
  static atr_String StringRefusalText(const omu_EnumLiteral* table, const cow_String& s);

 protected:
  explicit omu_PrimEnumBase(const omu_EnumLiteral* table) : table_(table) {}
  int FindText(const char* text) const noexcept;
  // Compares the whole text, so that a text with an embedded NUL matches no literal.
  int FindText(std::string_view text) const noexcept;
  int FindValue(std::int64_t value) const noexcept;
  void Store(int index) { str_ = cow_String(table_[index].text); }
  // Keeps a text already found equal to a literal: shares its body instead of making another.
  void StoreFound(const cow_String& literal) { str_ = literal; }

  [[noreturn]] void RefuseValue(std::int64_t value) const;
  [[noreturn]] void RefuseString(const cow_String& s) const;
  [[noreturn]] void RefuseStored(const cow_String& s) const;
  [[noreturn]] void RefuseOther(const cow_String& s) const;
  static cow_String ReadStored(const cls_ReadVisitor& r, const char* field);

 private:
  const omu_EnumLiteral* table_;
  cow_String str_;
};

template <class E, int N>
class omu_PrimEnum;

template <class E>
class omu_PrimEnum<E, 1> : public omu_PrimEnumBase {
  static_assert(std::is_enum_v<E>);

 public:
  static const omu_EnumLiteral* LiteralTable() { return omu_LiteralTable(E{}); }

  omu_PrimEnum() : omu_PrimEnumBase(LiteralTable()) {}
  omu_PrimEnum(const omu_PrimEnum&) = default;
  explicit omu_PrimEnum(E value) : omu_PrimEnumBase(LiteralTable()) {
    int i = FindValue(static_cast<std::int64_t>(value));
    if (i < 0) RefuseValue(static_cast<std::int64_t>(value));
    Store(i);
    value_ = value;
  }
  explicit omu_PrimEnum(const cow_String& s) : omu_PrimEnumBase(LiteralTable()) {
    int i = FindText(s.view());
    if (i < 0) RefuseString(s);
    StoreFound(s);
    value_ = static_cast<E>(Table()[i].value);
  }
  // Reads the stored literal of the named field.
  omu_PrimEnum(const cls_ReadVisitor& r, const char* field) : omu_PrimEnumBase(LiteralTable()) {
    cow_String s = ReadStored(r, field);
    int i = FindText(s.view());
    if (i < 0) RefuseStored(s);
    Take(i);
  }
  explicit omu_PrimEnum(const omu_PrimEnumBase& other) : omu_PrimEnumBase(LiteralTable()) {
    int i = FindText(other.GetString().view());
    if (i < 0) RefuseOther(other.GetString());
    Take(i);
  }

  bool SetValue(E value) {
    int i = FindValue(static_cast<std::int64_t>(value));
    if (i < 0) return false;
    Take(i);
    return true;
  }
  bool SetValue(const char* text) {
    int i = FindText(text);
    if (i < 0) return false;
    Take(i);
    return true;
  }
  E GetValue() const noexcept { return value_; }
  operator E() const noexcept { return value_; }

  static const char* Name(int i) { return LiteralTable()[i].text; }
  static E Value(int i) { return static_cast<E>(LiteralTable()[i].value); }

  omu_Primitive* Copy() const override { return new omu_PrimEnum(*this); }

 private:
  void Take(int i) {
    Store(i);
    value_ = static_cast<E>(Table()[i].value);
  }
  E value_{};
};

// The literal of a value of E, or null when the value is not in the table.
template <class E>
const char* omu_LiteralOf(E value) {
  for (const omu_EnumLiteral* p = omu_LiteralTable(E{}); p->text; ++p)
    if (p->value == static_cast<std::int64_t>(value)) return p->text;
  return nullptr;
}
