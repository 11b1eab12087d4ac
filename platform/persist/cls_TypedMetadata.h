#pragma once
// Class metadata for a C++ class with the persistent members (kClassName, TypeId(), kVersion,
// a reading constructor, DBWrite, operator==, GetUid, CowDtor): the type-erased operations
// derived from them. Untyped pointers point at the class's family root.
#include <iterator>
#include <string>
#include <type_traits>

#include "platform/base/bas_Alloc.h"
#include "platform/persist/cls_Family.h"

template <class C>
class cls_TypedMetadata : public cls_ClassMetadata {
 public:
  using Root = cls_Root<C>;
  cls_TypedMetadata() : cls_ClassMetadata(C::kClassName, C::TypeId(), C::kVersion, nullptr, 1) {}

  const char* ScriptName() const override {
    if constexpr (requires { C::kScriptName; }) return C::kScriptName;
    else return "";
  }
  std::vector<const char*> ScriptVariants() const override {
    if constexpr (requires { C::kScriptVariants; }) return {std::begin(C::kScriptVariants), std::end(C::kScriptVariants)};
    else return {};
  }
  bool AnswersTo(std::string_view constructor) const override {
    for (const char* variant : ScriptVariants())
      if (constructor == variant) return true;
    return constructor == ScriptName();
  }
  const char* RootName() const override { return Root::kClassName; }
  bool IsA(const cls_ClassMetadata& base) const override {
    if (&base == this) return true;
    if constexpr (requires { typename C::BaseClass; }) {
      const cls_ClassMetadata* b = cls_ClassRegistrar::Instance().ByName(C::BaseClass::kClassName);
      return b && b->IsA(base);
    }
    return false;
  }
  bool CanConstruct() const override { return !std::is_abstract_v<C>; }
  void* NewDefault() const override {
    if constexpr (std::is_abstract_v<C>) return cls_ClassMetadata::NewDefault();
    else return static_cast<Root*>(mem_New<C>());
  }
  void* NewFromRecord(const cls_ReadVisitor& r) const override {
    if constexpr (std::is_abstract_v<C>) {
      return cls_ClassMetadata::NewFromRecord(r);
    } else {
      if (r.GetTypeId() != C::TypeId())
        nex_ThrowCmd("A record of type id " + std::to_string(r.GetTypeId()) + " cannot be read as " + C::kClassName);
      return static_cast<Root*>(mem_New<C>(r));
    }
  }
  void* Clone(const void* p) const override {
    if constexpr (std::is_abstract_v<C>) return cls_ClassMetadata::Clone(p);
    else return static_cast<Root*>(mem_New<C>(Obj(p)));
  }
  void Write(const void* p, const cls_WriteVisitor& w) const override { Obj(p).DBWrite(w); }
  bool Equal(const void* a, const void* b) const override { return Obj(a) == Obj(b); }
  void AssertValid(const void* p) const override {
    if constexpr (requires(const C& c) { c.AssertValid(); }) Obj(p).AssertValid();
  }
  cls_Uid UidOf(const void* p) const override { return Obj(p).GetUid(); }
  const cls_ClassMetadata& ClassOf(const void* p) const override {
    if constexpr (requires(const Root& r) { r.ClassTypeId(); })
      return cls_MetadataOf(static_cast<const Root*>(p)->ClassTypeId());
    else return *this;
  }
  mdl_Repository* AsRepository(void* p) const override {
    if constexpr (requires(C& c) { c.RepositoryFace(); }) return static_cast<C*>(static_cast<Root*>(p))->RepositoryFace();
    else return nullptr;
  }
  const mdl_Repository* AsRepository(const void* p) const override {
    if constexpr (requires(const C& c) { c.RepositoryFace(); }) return Obj(p).RepositoryFace();
    else return nullptr;
  }
  bool IsRepositoryClass() const override { return requires(const C& c) { c.RepositoryFace(); }; }
  bool KeepsElementsApart() const override {
    if constexpr (requires { C::kKeepsElementsApart; }) return C::kKeepsElementsApart;
    else return false;
  }
  // A class (or the base of a family) that refuses unknown steps itself declares
  // static void RefuseUnknownStep(const Base&, std::string_view).
  void RefuseUnknownStep(const void* p, std::string_view step) const override {
    if constexpr (requires(const C& c, std::string_view s) { C::RefuseUnknownStep(c, s); }) C::RefuseUnknownStep(Obj(p), step);
  }

 protected:
  static const C& Obj(const void* p) { return *static_cast<const C*>(static_cast<const Root*>(p)); }
};

// Registers the typed metadata of C with the given attributes (number, name, type, collection).
struct cls_AttributeSpec {
  int number;
  const char* name;
  int type;
  int collection;
};

template <class C, std::size_t N>
void cls_RegisterTyped(cls_ClassRegistrar& registrar, const cls_AttributeSpec (&attrs)[N]) {
  auto* md = new cls_TypedMetadata<C>();
  registrar.AddClassMD(md);
  md->AddDtor(&C::CowDtor);
  for (const auto& a : attrs) md->AddAttribute(cls_FieldHandle(a.number, a.name), a.type, 1, a.collection);
}
