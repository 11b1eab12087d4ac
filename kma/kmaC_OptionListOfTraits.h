#pragma once
// How a typed option list is written, read, compared and offered to scripts: a list of objects
// whose every element is of the list's class. Included only by the .cpp files of classes with
// such lists, after the generic field-table code.
#include <string>
#include <vector>

#include "framework/fw_FieldTable.h"
#include "kma/kmaC_OptionListOf.h"
#include "platform/base/nex_Exception.h"

// Refuses an element of another class than the list's (nex_CmdException).
[[noreturn]] void kmaC_RefuseListElement(const char* list, const char* expected, unsigned given);

template <class T>
struct fw_Traits<kmaC_OptionListOf<T>> {
  using L = kmaC_OptionListOf<T>;
  using Element = T;
  static constexpr int kType = cls_AttrObjectList, kCollection = cls_List1D;
  static void Write(const cls_WriteVisitor& w, const char* n, const L& v) {
    std::vector<const void*> objs;
    objs.reserve(v.size());
    for (const auto& h : v) objs.push_back(h.IsNull() ? nullptr : &h.Get());
    w.WriteObjectList(n, objs, &fw_WriteObject<kmaC_MaterialOption>);
  }
  static void Read(const cls_ReadVisitor& r, const char* n, L& v) {
    std::vector<kmaC_OptionHandle> out;
    r.ReadObjectList(n, [&](std::size_t, const cls_ReadVisitor* e) {
      if (!e) nex_ThrowCmd(std::string("The list \"") + n + "\" holds a null element");
      out.push_back(Checked(n, kmaC_OptionHandle(cls_NewFromReader<kmaC_MaterialOption>(*e))));
    });
    v = L(std::move(out));
  }
  static bool Equal(const L& a, const L& b) { return a == b; }
  static cls_Value Get(const L& v) {
    std::vector<cls_RecordPtr> out;
    for (const auto& h : v) out.push_back(h.IsNull() ? nullptr : fw_ToRecordPtr(h.Get()));
    return out;
  }
  static void Set(const char* n, L& m, const cls_Value& v) {
    auto p = std::get_if<std::vector<cls_RecordPtr>>(&v);
    if (!p) fw_RefuseKind(n, v, "a list of objects");
    std::vector<kmaC_OptionHandle> out;
    for (const auto& rec : *p) {
      if (!rec) nex_ThrowCmd(std::string("The list \"") + n + "\" takes no null element");
      out.push_back(Checked(n, kmaC_OptionHandle(cls_NewFromReader<kmaC_MaterialOption>(cls_RecordReader(*rec)))));
    }
    m = L(std::move(out));
  }
  static kmaC_OptionHandle Checked(const char* n, kmaC_OptionHandle h) {
    if (!h->IsA(T::TypeId())) kmaC_RefuseListElement(n, T::kClassName, h->DynTypeId());
    return h;
  }
};
