#pragma once
// How an option slot is written, read, compared and offered to scripts. Included only by the
// .cpp files of classes with slots, after the generic field-table code.
#include "framework/fw_FieldTable.h"
#include "kma/kmaC_OptionSlot.h"

template <kmaC_OptionClass Class>
struct fw_Traits<kmaC_OptionSlot<Class>> {
  using S = kmaC_OptionSlot<Class>;
  static constexpr int kType = cls_AttrObject, kCollection = cls_Single;
  static constexpr bool kObject = true;
  // Scripts see the slot's own class once it is registered; until then the member is refused.
  using Element = S;
  static void Write(const cls_WriteVisitor& w, const char* n, const S& v) {
    if (v.IsNull()) w.WriteNull(n);
    else w.WriteObject(n, v.ConstGet(), &fw_WriteObject<kmaC_MaterialOption>);
  }
  static void Read(const cls_ReadVisitor& r, const char* n, S& v) {
    S out;
    r.ReadObject(n, [&](const cls_ReadVisitor& m) {
      out.Set(kmaC_OptionHandle(cls_NewFromReader<kmaC_MaterialOption>(m)), n);
    });
    v = std::move(out);
  }
  static bool Equal(const S& a, const S& b) { return a == b; }
  static cls_Value Get(const S& v) { return v.IsNull() ? cls_Value() : cls_Value(fw_ToRecordPtr(*v.ConstGet())); }
  static void Set(const char* n, S& m, const cls_Value& v) {
    if (std::holds_alternative<std::monostate>(v)) return m.Clear();
    auto p = std::get_if<cls_RecordPtr>(&v);
    if (!p || !*p) fw_RefuseKind(n, v, "an object");
    m.Set(kmaC_OptionHandle(cls_NewFromReader<kmaC_MaterialOption>(cls_RecordReader(**p))), n);
  }
  static const void* Child(const S& v) { return v.ConstGet(); }
  static void* MutableChild(S& v) { return v.Get(); }
};
