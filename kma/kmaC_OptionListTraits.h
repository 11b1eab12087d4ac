#pragma once
// How a typed list member of an option is written, read, compared and offered to scripts.
// Included only by the .cpp files of classes with such lists, after the generic field-table code.
#include "framework/fw_FieldTable.h"
#include "kma/kmaC_OptionListMember.h"

template <kmaC_OptionClass Class>
struct fw_Traits<kmaC_OptionListMember<Class>> {
  using L = kmaC_OptionListMember<Class>;
  static constexpr int kType = cls_AttrObjectList, kCollection = cls_List1D;
  // Scripts create the elements as the list's own class.
  using Element = L;
  static void Write(const cls_WriteVisitor& w, const char* n, const L& v) {
    std::vector<const void*> objs;
    objs.reserve(v.size());
    for (const kmaC_OptionHandle& h : v.List()) objs.push_back(h.IsNull() ? nullptr : &h.Get());
    w.WriteObjectList(n, objs, &fw_WriteObject<kmaC_MaterialOption>);
  }
  static void Read(const cls_ReadVisitor& r, const char* n, L& v) {
    std::vector<kmaC_OptionHandle> out;
    r.ReadObjectList(n, [&](std::size_t, const cls_ReadVisitor* e) {
      out.push_back(e ? kmaC_OptionHandle(cls_NewFromReader<kmaC_MaterialOption>(*e)) : kmaC_OptionHandle());
    });
    L read;
    read.Set(kmaC_MaterialOptionList(std::move(out)), n);
    v = std::move(read);
  }
  static bool Equal(const L& a, const L& b) { return a == b; }
  static cls_Value Get(const L& v) {
    std::vector<cls_RecordPtr> out;
    for (const kmaC_OptionHandle& h : v.List()) out.push_back(h.IsNull() ? nullptr : fw_ToRecordPtr(h.Get()));
    return out;
  }
  static void Set(const char* n, L& m, const cls_Value& v) {
    auto p = std::get_if<std::vector<cls_RecordPtr>>(&v);
    if (!p) fw_RefuseKind(n, v, "a list of objects");
    std::vector<kmaC_OptionHandle> out;
    for (const auto& rec : *p)
      out.push_back(rec ? kmaC_OptionHandle(cls_NewFromReader<kmaC_MaterialOption>(cls_RecordReader(*rec)))
                        : kmaC_OptionHandle());
    m.Set(kmaC_MaterialOptionList(std::move(out)), n);
  }
};
