#pragma once
// The generic half of the one-declaration-per-class pattern: given a class's field table, this
// writes, reads, compares, registers metadata and offers scripting access. Include it only from
// a class's .cpp file, which instantiates what the class needs.
#include <array>
#include <cstddef>
#include <set>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "framework/fw_Traits.h"
#include "platform/persist/cls_TypedMetadata.h"

// --- compile-time checks ----------------------------------------------------------------------

template <class Tuple>
constexpr bool fw_NumbersUnique(const Tuple& fields) {
  return std::apply(
      [](const auto&... f) {
        const int numbers[] = {f.number...};
        constexpr std::size_t n = sizeof...(f);
        for (std::size_t i = 0; i < n; ++i)
          for (std::size_t j = i + 1; j < n; ++j)
            if (numbers[i] == numbers[j]) return false;
        return true;
      },
      fields);
}

template <class Tuple>
constexpr bool fw_NamesUnique(const Tuple& fields) {
  auto same = [](const char* a, const char* b) {
    while (*a && *a == *b) ++a, ++b;
    return *a == *b;
  };
  return std::apply(
      [&](const auto&... f) {
        const char* names[] = {f.name...};
        const char* scripts[] = {f.scriptName...};
        constexpr std::size_t n = sizeof...(f);
        for (std::size_t i = 0; i < n; ++i)
          for (std::size_t j = i + 1; j < n; ++j)
            if (same(names[i], names[j]) || same(scripts[i], scripts[j])) return false;
        return true;
      },
      fields);
}

template <class F>
struct fw_MemberType;
template <class C, class M>
struct fw_MemberType<fw_Field<C, M>> {
  using type = M;
};

// --- the class operations -----------------------------------------------------------------------

// The field table as a visitor sees it: persistent names and attribute types, in write order.
template <class C>
struct fw_Layout {
  static constexpr std::size_t kCount = std::tuple_size_v<decltype(C::Fields())>;
  static constexpr std::array<const char*, kCount> kNames =
      std::apply([](const auto&... f) { return std::array<const char*, kCount>{f.name...}; }, C::Fields());
  static constexpr std::array<int, kCount> kTypes = std::apply(
      [](const auto&... f) {
        return std::array<int, kCount>{fw_Traits<typename fw_MemberType<std::remove_cvref_t<decltype(f)>>::type>::kType...};
      },
      C::Fields());
  static constexpr std::array<bool, kCount> kCells = std::apply(
      [](const auto&... f) {
        return std::array<bool, kCount>{
            requires(cls_WriteCell& c, const typename fw_MemberType<std::remove_cvref_t<decltype(f)>>::type& m) {
              fw_Traits<typename fw_MemberType<std::remove_cvref_t<decltype(f)>>::type>::WriteCell(c, m);
            }...};
      },
      C::Fields());
  static constexpr cls_FieldLayout kLayout{kCount, kNames.data(), kTypes.data(), kCells.data()};
};

template <class C, class F>
void fw_WriteAt(const C& obj, const cls_WriteVisitor& w, const F& f, cls_WriteCell* cells, std::size_t i) {
  using M = typename fw_MemberType<F>::type;
  using Tr = fw_Traits<M>;
  if constexpr (requires(cls_WriteCell& c, const M& m) { Tr::WriteCell(c, m); }) {  // as fw_Layout's kCells
    if (cells) return Tr::WriteCell(cells[i], obj.*(f.member));
  }
  Tr::Write(w, f.name, obj.*(f.member));
}

template <class C, class F>
void fw_ReadAt(C& obj, const cls_ReadVisitor& r, const F& f, const cls_ReadCell& cell) {
  using Tr = fw_Traits<typename fw_MemberType<F>::type>;
  if constexpr (requires { Tr::ReadCell(f.name, cell, obj.*(f.member)); }) Tr::ReadCell(f.name, cell, obj.*(f.member));
  else Tr::Read(r, f.name, obj.*(f.member));
}

// Starts the record (which the visitor may decline) and writes every field in table order:
// plain fields into the visitor's cells when it offers them for this table, the rest by name.
template <class C>
void fw_WriteFields(const C& obj, const cls_WriteVisitor& w) {
  if (!w.StartWrite(C::TypeId(), obj.GetUid())) return;
  cls_WriteCell* cells = w.Positional(fw_Layout<C>::kLayout);
  std::size_t i = 0;
  std::apply([&](const auto&... f) { (fw_WriteAt(obj, w, f, cells, i++), ...); }, C::Fields());
}

// Reads every field (the uid is taken by the reading constructor): by position when the visitor
// holds the row exactly as the table lists it, by persistent name otherwise.
template <class C>
void fw_ReadFields(C& obj, const cls_ReadVisitor& r) {
  if (const cls_ReadCell* cells = r.Positional(fw_Layout<C>::kLayout)) {
    std::size_t i = 0;
    std::apply([&](const auto&... f) { (fw_ReadAt(obj, r, f, cells[i++]), ...); }, C::Fields());
    return;
  }
  std::apply(
      [&](const auto&... f) {
        (fw_Traits<typename fw_MemberType<std::remove_cvref_t<decltype(f)>>::type>::Read(r, f.name, obj.*(f.member)),
         ...);
      },
      C::Fields());
}

// Equal uids and equal fields.
template <class C>
bool fw_EqualFields(const C& a, const C& b) {
  if (a.GetUid() != b.GetUid()) return false;
  return std::apply(
      [&](const auto&... f) {
        return (fw_Traits<typename fw_MemberType<std::remove_cvref_t<decltype(f)>>::type>::Equal(a.*(f.member),
                                                                                                 b.*(f.member)) &&
                ...);
      },
      C::Fields());
}

// Releases an instance held by the framework (the void* points at the family's root).
template <class C>
void fw_CowDtor(void* p) {
  cow_Destroy(static_cast<C*>(static_cast<fw_Root<C>*>(p)));
}

template <class C, std::size_t I>
struct fw_ScriptAccess {
  static constexpr auto kField = std::get<I>(C::Fields());
  using M = typename fw_MemberType<std::remove_cvref_t<decltype(kField)>>::type;
  using Tr = fw_Traits<M>;
  static const C& Obj(const void* p) { return *static_cast<const C*>(static_cast<const fw_Root<C>*>(p)); }
  static C& Obj(void* p) { return *static_cast<C*>(static_cast<fw_Root<C>*>(p)); }
  static cls_Value Get(const void* p) { return Tr::Get(Obj(p).*(kField.member)); }
  static void Set(void* p, const cls_Value& v) {
    // A class that refuses some edits (a suppressed feature) says so before anything changes.
    if constexpr (requires(const C& c) { c.AssertEditable(kField.name); }) Obj(p).AssertEditable(kField.name);
    M value = Obj(p).*(kField.member);
    Tr::Set(kField.scriptName, value, v);  // refusals leave the object as it was
    Obj(p).*(kField.member) = std::move(value);
  }
  static const void* Child(const void* p) {
    if constexpr (requires { Tr::kObject; }) return Tr::Child(Obj(p).*(kField.member));
    else return nullptr;
  }
  static void* MutableChild(void* p) {
    if constexpr (requires { Tr::kObject; }) return Tr::MutableChild(Obj(p).*(kField.member));
    else return nullptr;
  }
  static cls_ScriptField Make() {
    const omu_EnumLiteral* literals = nullptr;
    if constexpr (std::is_enum_v<M>) literals = omu_LiteralTable(M{});
    else if constexpr (requires { Tr::Literals(); }) literals = Tr::Literals();  // a number or a literal
    const cls_ClassMetadata* declared = nullptr;
    bool optional = false;
    if constexpr (requires { Tr::kNullable; }) optional = true;  // a number that may be null
    if constexpr (requires { typename Tr::Element; }) {
      declared = cls_ClassRegistrar::Instance().ByName(Tr::Element::kClassName);
      optional = !fw_Persistent<M>;
    }
    return cls_ScriptField{kField.scriptName, kField.name, kField.number, Tr::kType, literals, declared,
                           optional, &Get, &Set, &Child, &MutableChild};
  }
};

template <class C, std::size_t... I>
std::vector<cls_ScriptField> fw_MakeScriptFields(std::index_sequence<I...>) {
  return {fw_ScriptAccess<C, I>::Make()...};
}

// The class-specific metadata subclass of a class with a field table: the typed operations and
// the scripting fields derived from the table.
template <class C>
class fw_ClassMetadata final : public cls_TypedMetadata<C> {
 public:
  const std::vector<cls_ScriptField>& ScriptFields() const override {
    if (!scriptBuilt_) {
      script_ = fw_MakeScriptFields<C>(std::make_index_sequence<std::tuple_size_v<decltype(C::Fields())>>());
      // A class whose scripts see some members in another form than they are stored composes its
      // face from the stored fields.
      if constexpr (requires(std::vector<cls_ScriptField> v) { C::ScriptFace(std::move(v)); })
        script_ = C::ScriptFace(std::move(script_));
      scriptBuilt_ = true;
    }
    return script_;
  }

 private:
  mutable std::vector<cls_ScriptField> script_;
  mutable bool scriptBuilt_ = false;
};

// Builds the class metadata (name, type id, version, no factory, flag 1), adds it to the
// registrar, gives it the class's destructor and adds the attributes in table order.
template <class C>
void fw_InitializeMetadata(cls_ClassRegistrar& registrar) {
  static_assert(fw_NumbersUnique(C::Fields()), "field numbers must be unique within a class");
  static_assert(fw_NamesUnique(C::Fields()), "persistent and scripting names must be unique within a class");
  auto* md = new fw_ClassMetadata<C>();
  registrar.AddClassMD(md);
  md->AddDtor(&C::CowDtor);
  std::apply(
      [&](const auto&... f) {
        (md->AddAttribute(cls_FieldHandle(f.number, f.name),
                          fw_Traits<typename fw_MemberType<std::remove_cvref_t<decltype(f)>>::type>::kType, 1,
                          fw_Traits<typename fw_MemberType<std::remove_cvref_t<decltype(f)>>::type>::kCollection),
         ...);
      },
      C::Fields());
}
