#pragma once
// How a smoothing member is written, read and offered to scripts. Included only from the .cpp of
// a class that has one, after the generic field-table code.
#include "framework/fw_Traits.h"
#include "kam/kamC_Smoothing.h"

template <class E>
struct fw_Traits<kamC_Smoothing<E>> {
  using T = kamC_Smoothing<E>;
  static constexpr int kType = cls_AttrDouble, kCollection = cls_Single;
  // The literal a script may give instead of a number.
  static const omu_EnumLiteral* Literals() { return omu_LiteralTable(E{}); }
  static void Write(const cls_WriteVisitor& w, const char* n, const T& v) { w.WriteDouble(n, v.value); }
  static void Read(const cls_ReadVisitor& r, const char* n, T& v) { v.value = r.ReadDouble(n); }
  static bool Equal(const T& a, const T& b) { return fw_Traits<double>::Equal(a.value, b.value); }
  static cls_Value Get(const T& v) {
    if (v.IsSpecified()) return v.value;
    return omu_PrimEnum<E, 1>(E{}).GetString();
  }
  // A literal goes through the enumeration's own lookup, so that a wrong one is refused with its
  // message; any literal of the table means the solver's default.
  static void Set(const char* n, T& m, const cls_Value& v) {
    if (auto p = std::get_if<cow_String>(&v)) {
      (void)omu_PrimEnum<E, 1>(*p);
      m.value = kamC_kUnspecified;
      return;
    }
    fw_Traits<double>::Set(n, m.value, v);
  }
};
