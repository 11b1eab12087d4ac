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

// A component number or "ALL": the generic number-or-literal conversion.
template <class E>
struct fw_Traits<kbeC_ComponentOrAll<E>> : fw_LiteralNumberTraits<kbeC_ComponentOrAll<E>, std::int32_t, E> {};
