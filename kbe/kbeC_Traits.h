#pragma once
// How the connector-specific member kinds (kbeC_Values.h) are written, read and offered to
// scripts. Included only by the module's .cpp files, beside framework/fw_FieldTable.h.
#include <string>

#include "framework/fw_Traits.h"
#include "kbe/kbeC_Values.h"

template <class E, class S>
struct fw_Traits<kbeC_StoredEnum<E, S>> {
  using T = kbeC_StoredEnum<E, S>;
  static constexpr int kType = cls_AttrEnum, kCollection = cls_Single;
  static void Write(const cls_WriteVisitor& w, const char* n, const T& v) {
    w.WriteString(n, omu_PrimEnum<S, 1>(static_cast<S>(v.value)).GetString());
  }
  // Only the stored literals are read; anything else is refused by the stored enumeration.
  static void Read(const cls_ReadVisitor& r, const char* n, T& v) {
    v = T(static_cast<E>(omu_PrimEnum<S, 1>(r.ReadString(n)).GetValue()));
  }
  static bool Equal(const T& a, const T& b) { return a.value == b.value; }
  static cls_Value Get(const T& v) { return fw_Traits<E>::Get(v.value); }
  static void Set(const char* n, T& m, const cls_Value& v) { m = T(fw_Traits<E>::FromValue(n, v)); }
};

template <class E>
struct fw_Traits<kbeC_ComponentOrAll<E>> {
  using T = kbeC_ComponentOrAll<E>;
  static constexpr int kType = cls_AttrInt, kCollection = cls_Single;
  static void Write(const cls_WriteVisitor& w, const char* n, const T& v) { w.WriteInt(n, v.value); }
  static void Read(const cls_ReadVisitor& r, const char* n, T& v) { v = T(r.ReadInt(n)); }
  static bool Equal(const T& a, const T& b) { return a.value == b.value; }
  // Scripts see the stored number (2147483647 for "ALL"), so that what they get they can set.
  static cls_Value Get(const T& v) { return v.value; }
  // A number, or the literal "ALL" (checked by the enumeration, which refuses anything else).
  static void Set(const char* n, T& m, const cls_Value& v) {
    if (auto p = std::get_if<std::int32_t>(&v)) return void(m = T(*p));
    if (auto p = std::get_if<cow_String>(&v)) {
      omu_PrimEnum<E, 1> checked(*p);
      (void)checked;
      return void(m = T(kbeC_kAll));
    }
    fw_RefuseKind(n, v, "a component number or \"ALL\"");
  }
};
