#pragma once
// How each kind of member is written, read, compared and offered to scripts. Included only by
// the generic field-table code (fw_FieldTable.h), never by class headers.
#include <cmath>
#include <concepts>
#include <cstdint>
#include <memory>
#include <string>
#include <type_traits>
#include <vector>

#include "framework/fw_Field.h"
#include "framework/fw_OrLiteral.h"
#include "platform/persist/cls_ClassMetadata.h"
#include "platform/persist/cls_ClassRegistrar.h"
#include "platform/persist/cls_Family.h"
#include "platform/persist/cls_Record.h"
#include "platform/persist/cls_Visitor.h"
#include "platform/base/cow_COW.h"
#include "platform/base/cow_List.h"
#include "platform/base/nex_Exception.h"
#include "platform/base/omu_PrimEnum.h"
#include "platform/model/rgnC_Region.h"

// A class with a field table.
template <class T>
concept fw_Persistent = requires(const T& t, const cls_WriteVisitor& w) {
  T::TypeId();
  T::kClassName;
  t.DBWrite(w);
};

template <class T>
using fw_Root = cls_Root<T>;

[[noreturn]] void fw_RefuseKind(const char* field, const cls_Value& v, const char* wanted);

template <class T>
T* fw_NewFromReader(const cls_ReadVisitor& r) {
  return cls_NewFromReader<T>(r);
}

template <fw_Persistent T>
void fw_WriteObject(const void* p, const cls_WriteVisitor& w) {
  static_cast<const T*>(p)->DBWrite(w);
}

template <fw_Persistent T>
cls_RecordPtr fw_ToRecordPtr(const T& obj) {
  cls_RecordWriter w;
  obj.DBWrite(w);
  return std::make_shared<const cls_Record>(w.Take());
}

template <class M>
struct fw_Traits;

template <>
struct fw_Traits<std::int32_t> {
  static constexpr int kType = cls_AttrInt, kCollection = cls_Single;
  static void Write(const cls_WriteVisitor& w, const char* n, std::int32_t v) { w.WriteInt(n, v); }
  static void Read(const cls_ReadVisitor& r, const char* n, std::int32_t& v) { v = r.ReadInt(n); }
  static void ReadCell(const char*, const cls_ReadCell& c, std::int32_t& v) { v = static_cast<std::int32_t>(c.integer); }
  static void WriteCell(cls_WriteCell& c, std::int32_t v) { c.integer = v; }
  static bool Equal(std::int32_t a, std::int32_t b) { return a == b; }
  static cls_Value Get(std::int32_t v) { return v; }
  static void Set(const char* n, std::int32_t& m, const cls_Value& v) {
    if (auto p = std::get_if<std::int32_t>(&v)) return void(m = *p);
    fw_RefuseKind(n, v, "an int");
  }
};

template <>
struct fw_Traits<double> {
  static constexpr int kType = cls_AttrDouble, kCollection = cls_Single;
  static void Write(const cls_WriteVisitor& w, const char* n, double v) { w.WriteDouble(n, v); }
  static void Read(const cls_ReadVisitor& r, const char* n, double& v) { v = r.ReadDouble(n); }
  static void ReadCell(const char*, const cls_ReadCell& c, double& v) { v = c.number; }
  static void WriteCell(cls_WriteCell& c, double v) { c.number = v; }
  // NaN equals NaN here, so that an object holding one still equals its own copy.
  static bool Equal(double a, double b) { return a == b || (std::isnan(a) && std::isnan(b)); }
  static cls_Value Get(double v) { return v; }
  static void Set(const char* n, double& m, const cls_Value& v) {
    if (auto p = std::get_if<double>(&v)) return void(m = *p);
    if (auto p = std::get_if<std::int32_t>(&v)) return void(m = *p);
    fw_RefuseKind(n, v, "a number");
  }
};

template <>
struct fw_Traits<bool> {
  static constexpr int kType = cls_AttrBool, kCollection = cls_Single;
  static void Write(const cls_WriteVisitor& w, const char* n, bool v) { w.WriteBool(n, v); }
  static void Read(const cls_ReadVisitor& r, const char* n, bool& v) { v = r.ReadBool(n); }
  static void ReadCell(const char*, const cls_ReadCell& c, bool& v) { v = c.integer != 0; }
  static void WriteCell(cls_WriteCell& c, bool v) { c.integer = v ? 1 : 0; }
  static bool Equal(bool a, bool b) { return a == b; }
  static cls_Value Get(bool v) { return v; }
  static void Set(const char* n, bool& m, const cls_Value& v) {
    if (auto p = std::get_if<bool>(&v)) return void(m = *p);
    fw_RefuseKind(n, v, "a bool");
  }
};

template <>
struct fw_Traits<cow_String> {
  static constexpr int kType = cls_AttrString, kCollection = cls_Single;
  static void Write(const cls_WriteVisitor& w, const char* n, const cow_String& v) { w.WriteString(n, v); }
  static void Read(const cls_ReadVisitor& r, const char* n, cow_String& v) { v = r.ReadString(n); }
  static void ReadCell(const char*, const cls_ReadCell& c, cow_String& v) { v = *c.text; }
  static void WriteCell(cls_WriteCell& c, const cow_String& v) {
    c.text = v.c_str();
    c.size = v.size();
  }
  static bool Equal(const cow_String& a, const cow_String& b) { return a == b; }
  static cls_Value Get(const cow_String& v) { return v; }
  static void Set(const char* n, cow_String& m, const cls_Value& v) {
    if (auto p = std::get_if<cow_String>(&v)) return void(m = *p);
    fw_RefuseKind(n, v, "a string");
  }
};

template <>
struct fw_Traits<rgnC_Region> {
  static constexpr int kType = cls_AttrRegion, kCollection = cls_Single;
  static void Write(const cls_WriteVisitor& w, const char* n, const rgnC_Region& v) { w.WriteString(n, v.Name()); }
  static void Read(const cls_ReadVisitor& r, const char* n, rgnC_Region& v) { v = rgnC_Region(r.ReadString(n)); }
  static void ReadCell(const char*, const cls_ReadCell& c, rgnC_Region& v) { v = rgnC_Region(*c.text); }
  static void WriteCell(cls_WriteCell& c, const rgnC_Region& v) {
    c.text = v.Name().c_str();
    c.size = v.Name().size();
  }
  static bool Equal(const rgnC_Region& a, const rgnC_Region& b) { return a == b; }
  static cls_Value Get(const rgnC_Region& v) { return v.Name(); }
  static void Set(const char* n, rgnC_Region& m, const cls_Value& v) {
    if (auto p = std::get_if<cow_String>(&v)) return void(m = rgnC_Region(*p));
    fw_RefuseKind(n, v, "a region name");
  }
};

// Enumerations: written as their literal, read back through the omu_PrimEnum constructor from a
// string, so that an unknown stored literal is refused with that constructor's message.
template <class E>
  requires std::is_enum_v<E>
struct fw_Traits<E> {
  static constexpr int kType = cls_AttrEnum, kCollection = cls_Single;
  static cow_String Literal(E v) { return omu_PrimEnum<E, 1>(v).GetString(); }
  static E FromValue(const char* n, const cls_Value& v) {
    if (auto p = std::get_if<cow_String>(&v)) return omu_PrimEnum<E, 1>(*p).GetValue();
    if (auto p = std::get_if<std::int32_t>(&v)) return omu_PrimEnum<E, 1>(static_cast<E>(*p)).GetValue();
    fw_RefuseKind(n, v, "an enumeration literal");
  }
  static void Write(const cls_WriteVisitor& w, const char* n, E v) { w.WriteString(n, Literal(v)); }
  static void Read(const cls_ReadVisitor& r, const char* n, E& v) { v = omu_PrimEnum<E, 1>(r.ReadString(n)).GetValue(); }
  // A literal the reader shares between rows is looked up once, and its value kept with it.
  static void ReadCell(const char*, const cls_ReadCell& c, E& v) {
    const omu_EnumLiteral* table = omu_LiteralTable(E{});
    if (c.code && c.code->table == table) return void(v = static_cast<E>(c.code->code));
    v = omu_PrimEnum<E, 1>(*c.text).GetValue();  // refuses an unknown literal with the enumeration's message
    if (c.code) *c.code = cls_LiteralCode{table, static_cast<std::int32_t>(v)};
  }
  // The literal's text straight from the table, which outlives every write.
  static void WriteCell(cls_WriteCell& c, E v) {
    for (const omu_EnumLiteral* l = omu_LiteralTable(E{}); l->text; ++l)
      if (l->value == static_cast<std::int64_t>(v)) {
        c.text = l->text;
        c.size = std::char_traits<char>::length(l->text);
        return;
      }
    omu_PrimEnum<E, 1> refused(v);  // refuses a value outside the enumeration with its message
  }
  static bool Equal(E a, E b) { return a == b; }
  static cls_Value Get(E v) { return Literal(v); }
  static void Set(const char* n, E& m, const cls_Value& v) { m = FromValue(n, v); }
};

// A number or a literal of E, held in T::value as the number's largest value (fw_OrLiteral and
// its module-specific kin): stored as the number, offered to scripts as the literal's text when it
// holds the sentinel. A text is looked up through omu_PrimEnum, so that anything but a literal of
// E is refused with the enumeration's message.
template <class T, class N, class E>
struct fw_LiteralNumberTraits {
  static constexpr N kSentinel = std::numeric_limits<N>::max();
  static constexpr int kType = fw_Traits<N>::kType, kCollection = cls_Single;
  static const omu_EnumLiteral* Literals() { return omu_LiteralTable(E{}); }
  static void Write(const cls_WriteVisitor& w, const char* n, const T& v) { fw_Traits<N>::Write(w, n, v.value); }
  static void Read(const cls_ReadVisitor& r, const char* n, T& v) { fw_Traits<N>::Read(r, n, v.value); }
  static void ReadCell(const char* n, const cls_ReadCell& c, T& v) { fw_Traits<N>::ReadCell(n, c, v.value); }
  static void WriteCell(cls_WriteCell& c, const T& v) { fw_Traits<N>::WriteCell(c, v.value); }
  static bool Equal(const T& a, const T& b) { return fw_Traits<N>::Equal(a.value, b.value); }
  static cls_Value Get(const T& v) {
    return v.value == kSentinel ? cls_Value(fw_Traits<E>::Literal(E{})) : fw_Traits<N>::Get(v.value);
  }
  static void Set(const char* n, T& m, const cls_Value& v) {
    if (auto p = std::get_if<cow_String>(&v)) {
      (void)omu_PrimEnum<E, 1>(*p);  // refuses anything but a literal of E
      return void(m.value = kSentinel);
    }
    N number = m.value;
    fw_Traits<N>::Set(n, number, v);
    m.value = number;
  }
};

template <class N, class E>
struct fw_Traits<fw_OrLiteral<N, E>> : fw_LiteralNumberTraits<fw_OrLiteral<N, E>, N, E> {};

// A double that may be unspecified: null to scripts.
template <>
struct fw_Traits<fw_Unspecified> {
  using T = fw_Unspecified;
  static constexpr int kType = cls_AttrDouble, kCollection = cls_Single;
  static constexpr bool kNullable = true;
  static void Write(const cls_WriteVisitor& w, const char* n, const T& v) { w.WriteDouble(n, v.value); }
  static void Read(const cls_ReadVisitor& r, const char* n, T& v) { v.value = r.ReadDouble(n); }
  static void ReadCell(const char*, const cls_ReadCell& c, T& v) { v.value = c.number; }
  static void WriteCell(cls_WriteCell& c, const T& v) { c.number = v.value; }
  static bool Equal(const T& a, const T& b) { return fw_Traits<double>::Equal(a.value, b.value); }
  static cls_Value Get(const T& v) { return v.IsUnspecified() ? cls_Value() : cls_Value(v.value); }
  static void Set(const char* n, T& m, const cls_Value& v) {
    if (std::holds_alternative<std::monostate>(v)) return void(m.value = T::kUnspecified);
    fw_Traits<double>::Set(n, m.value, v);
  }
};

template <>
struct fw_Traits<cow_2DArray<double>> {
  using T = cow_2DArray<double>;
  static constexpr int kType = cls_AttrDoubleTable, kCollection = cls_Array2D;
  static void Write(const cls_WriteVisitor& w, const char* n, const T& v) { w.WriteDoubleTable(n, v); }
  static void Read(const cls_ReadVisitor& r, const char* n, T& v) { v = r.ReadDoubleTable(n); }
  static void ReadCell(const char* n, const cls_ReadCell& c, T& v) {
    if (auto p = std::get_if<T>(c.value)) return void(v = *p);
    fw_RefuseKind(n, *c.value, "a table of numbers");
  }
  static bool Equal(const T& a, const T& b) { return a == b; }
  static cls_Value Get(const T& v) { return v; }
  static void Set(const char* n, T& m, const cls_Value& v) {
    if (auto p = std::get_if<T>(&v)) return void(m = *p);
    fw_RefuseKind(n, v, "a table of numbers");
  }
};

// Lists of plain values share one shape: a vector in the record.
template <class Elem, class Stored, int Type>
struct fw_ListTraits {
  using T = cow_List<Elem>;
  static constexpr int kType = Type, kCollection = cls_List1D;
  static std::vector<Stored> ToStored(const T& v) {
    std::vector<Stored> out;
    out.reserve(v.size());
    for (const auto& e : v) out.push_back(Convert(e));
    return out;
  }
  static Stored Convert(const Elem& e) {
    if constexpr (std::is_same_v<Elem, Stored>) return e;
    else if constexpr (std::is_enum_v<Elem>) return fw_Traits<Elem>::Literal(e);
    else return e.Name();  // regions
  }
  static Elem Back(const char* n, const Stored& s) {
    if constexpr (std::is_same_v<Elem, Stored>) return s;
    else if constexpr (std::is_enum_v<Elem>) return fw_Traits<Elem>::FromValue(n, cls_Value(s));
    else return Elem(s);
  }
  static T FromStored(const char* n, const std::vector<Stored>& s) {
    std::vector<Elem> out;
    out.reserve(s.size());
    for (const auto& e : s) out.push_back(Back(n, e));
    return T(std::move(out));
  }
  static void Write(const cls_WriteVisitor& w, const char* n, const T& v) {
    if constexpr (std::is_same_v<Stored, std::int32_t>) w.WriteIntList(n, ToStored(v));
    else if constexpr (std::is_same_v<Stored, double>) w.WriteDoubleList(n, ToStored(v));
    else if constexpr (std::is_same_v<Stored, bool>) w.WriteBoolList(n, ToStored(v));
    else w.WriteStringList(n, ToStored(v));
  }
  static void Read(const cls_ReadVisitor& r, const char* n, T& v) {
    if constexpr (std::is_same_v<Stored, std::int32_t>) v = FromStored(n, r.ReadIntList(n));
    else if constexpr (std::is_same_v<Stored, double>) v = FromStored(n, r.ReadDoubleList(n));
    else if constexpr (std::is_same_v<Stored, bool>) v = FromStored(n, r.ReadBoolList(n));
    else v = FromStored(n, r.ReadStringList(n));
  }
  static void ReadCell(const char* n, const cls_ReadCell& c, T& v) {
    if (auto p = std::get_if<std::vector<Stored>>(c.value)) return void(v = FromStored(n, *p));
    fw_RefuseKind(n, *c.value, cls_AttrTypeName(Type));
  }
  static bool Equal(const T& a, const T& b) {
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i)
      if (!fw_Traits<Elem>::Equal(a[i], b[i])) return false;
    return true;
  }
  static cls_Value Get(const T& v) { return ToStored(v); }
  static void Set(const char* n, T& m, const cls_Value& v) {
    if (auto p = std::get_if<std::vector<Stored>>(&v)) return void(m = FromStored(n, *p));
    if constexpr (std::is_same_v<Stored, double>) {
      if (auto p = std::get_if<std::vector<std::int32_t>>(&v)) {
        std::vector<double> d(p->begin(), p->end());
        return void(m = FromStored(n, d));
      }
    }
    if (auto p = std::get_if<std::vector<cls_RecordPtr>>(&v); p && p->empty()) return void(m = T());
    fw_RefuseKind(n, v, cls_AttrTypeName(Type));
  }
};

template <>
struct fw_Traits<cow_List<std::int32_t>> : fw_ListTraits<std::int32_t, std::int32_t, cls_AttrIntList> {};
template <>
struct fw_Traits<cow_List<double>> : fw_ListTraits<double, double, cls_AttrDoubleList> {};
template <>
struct fw_Traits<cow_List<bool>> : fw_ListTraits<bool, bool, cls_AttrBoolList> {};
template <>
struct fw_Traits<cow_List<cow_String>> : fw_ListTraits<cow_String, cow_String, cls_AttrStringList> {};
template <>
struct fw_Traits<cow_List<rgnC_Region>> : fw_ListTraits<rgnC_Region, cow_String, cls_AttrRegionList> {};
template <class E>
  requires std::is_enum_v<E>
struct fw_Traits<cow_List<E>> : fw_ListTraits<E, cow_String, cls_AttrEnumList> {};

// A member object held by a copy-on-write handle; null when absent.
template <fw_Persistent T, class P>
struct fw_Traits<cow_COW<T, P>> {
  using H = cow_COW<T, P>;
  static constexpr int kType = cls_AttrObject, kCollection = cls_Single;
  static constexpr bool kObject = true;
  using Element = T;
  static void Write(const cls_WriteVisitor& w, const char* n, const H& v) {
    if (v.IsNull()) w.WriteNull(n);
    else w.WriteObject(n, &v.Get(), &fw_WriteObject<T>);
  }
  static void Read(const cls_ReadVisitor& r, const char* n, H& v) {
    H out;
    r.ReadObject(n, [&](const cls_ReadVisitor& m) { out = H(fw_NewFromReader<T>(m)); });
    v = std::move(out);
  }
  static bool Equal(const H& a, const H& b) { return a == b; }
  static cls_Value Get(const H& v) { return v.IsNull() ? cls_Value() : cls_Value(fw_ToRecordPtr(v.Get())); }
  static void Set(const char* n, H& m, const cls_Value& v) {
    if (std::holds_alternative<std::monostate>(v)) return void(m = H());
    auto p = std::get_if<cls_RecordPtr>(&v);
    if (!p || !*p) fw_RefuseKind(n, v, "an object");
    m = H(fw_NewFromReader<T>(cls_RecordReader(**p)));
  }
  static const void* Child(const H& v) { return v.IsNull() ? nullptr : static_cast<const fw_Root<T>*>(&v.Get()); }
  static void* MutableChild(H& v) { return v.IsNull() ? nullptr : static_cast<fw_Root<T>*>(&v.Get()); }
};

// A member object held by value; never null.
template <fw_Persistent T>
struct fw_Traits<T> {
  static constexpr int kType = cls_AttrObject, kCollection = cls_Single;
  static constexpr bool kObject = true;
  using Element = T;
  static void Write(const cls_WriteVisitor& w, const char* n, const T& v) { w.WriteObject(n, &v, &fw_WriteObject<T>); }
  static void Read(const cls_ReadVisitor& r, const char* n, T& v) {
    bool present = r.ReadObject(n, [&](const cls_ReadVisitor& m) {
      if (m.GetTypeId() != T::TypeId())
        nex_ThrowCmd(std::string("The field \"") + n + "\" holds a record of type id " +
                     std::to_string(m.GetTypeId()) + ", not a " + T::kClassName);
      v = T(m);
    });
    if (!present) nex_ThrowCmd(std::string("The field \"") + n + "\" may not be null");
  }
  static bool Equal(const T& a, const T& b) { return a == b; }
  static cls_Value Get(const T& v) { return fw_ToRecordPtr(v); }
  static void Set(const char* n, T& m, const cls_Value& v) {
    auto p = std::get_if<cls_RecordPtr>(&v);
    if (!p || !*p) fw_RefuseKind(n, v, "an object");
    if ((*p)->typeId != T::TypeId()) nex_ThrowCmd(std::string("The member \"") + n + "\" takes a " + T::kClassName);
    m = T(cls_RecordReader(**p));
  }
  static const void* Child(const T& v) { return &v; }
  static void* MutableChild(T& v) { return &v; }
};

// A list of member objects, each held by a copy-on-write handle.
template <fw_Persistent T, class P>
struct fw_Traits<cow_List<cow_COW<T, P>>> {
  using H = cow_COW<T, P>;
  using L = cow_List<H>;
  using Element = T;  // the declared class of the elements, offered to scripts
  static constexpr int kType = cls_AttrObjectList, kCollection = cls_List1D;
  static void Write(const cls_WriteVisitor& w, const char* n, const L& v) {
    std::vector<const void*> objs;
    objs.reserve(v.size());
    for (const auto& h : v) objs.push_back(h.IsNull() ? nullptr : &h.Get());
    w.WriteObjectList(n, objs, &fw_WriteObject<T>);
  }
  static void Read(const cls_ReadVisitor& r, const char* n, L& v) {
    std::vector<H> out;
    r.ReadObjectList(n, [&](std::size_t, const cls_ReadVisitor* e) {
      out.push_back(e ? H(fw_NewFromReader<T>(*e)) : H());
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
    std::vector<H> out;
    for (const auto& rec : *p) out.push_back(rec ? H(fw_NewFromReader<T>(cls_RecordReader(*rec))) : H());
    m = L(std::move(out));
  }
};
