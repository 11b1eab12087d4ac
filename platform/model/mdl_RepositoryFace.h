#pragma once
// The type-erased face of a repository (mdl_Repository), derived once from a repository's typed
// operations. Derived supplies: Names::kRepositoryName, Size(), Has(Key), ConstGet(Key),
// Get(Key) (separating and recording "Modify"), InsertHandle(Key, Handle), Remove(Key), and the
// static ParseKey(text) (an optional key) and KeyOf(text) (a key, or the repository's refusal).
// Element pointers point at the root class of the element's family.
#include "platform/persist/cls_Family.h"
#include "platform/base/cow_COW.h"
#include "platform/model/mdl_Repository.h"

template <class Derived, class T>
class mdl_RepositoryFace : public mdl_Repository {
 public:
  const char* RepositoryName() const override { return Derived::Names::kRepositoryName; }
  std::size_t Count() const override { return Self().Size(); }
  const cls_ClassMetadata& ElementClass() const override { return cls_MetadataOfClass<T>(); }
  bool Contains(const cow_String& text) const override {
    auto k = Derived::ParseKey(text);
    return k && Self().Has(*k);
  }
  const void* Find(const cow_String& text, const cls_ClassMetadata** cls) const override {
    auto k = Derived::ParseKey(text);
    const T* obj = k ? Self().ConstGet(*k) : nullptr;
    if (obj && cls) *cls = &cls_ClassOf(*obj);
    return obj ? static_cast<const cls_Root<T>*>(obj) : nullptr;
  }
  void* Modify(const cow_String& text, const cls_ClassMetadata** cls) override {
    T& obj = Self().Get(Derived::KeyOf(text));
    if (cls) *cls = &cls_ClassOf(obj);
    return static_cast<cls_Root<T>*>(&obj);
  }
  void InsertNew(const cow_String& text, void* owned) override {
    // The handle owns the element from here, even when the key is refused.
    cow_COW<T, cow_Virtual<T>> h(static_cast<T*>(static_cast<cls_Root<T>*>(owned)));
    Self().InsertHandle(Derived::KeyOf(text), std::move(h));
  }
  [[noreturn]] void RefuseMissingKey(const cow_String& key) const override {
    if constexpr (requires(std::size_t n) { Derived::Names::RefuseMissing(n); }) Derived::Names::RefuseMissing(Count());
    mdl_Repository::RefuseMissingKey(key);
  }
  bool RemoveKey(const cow_String& text) override {
    auto k = Derived::ParseKey(text);
    return k && Self().Remove(*k);
  }

 protected:
  // Writes an element given as a pointer to its family's root.
  static void WriteElement(const void* p, const cls_WriteVisitor& w) {
    static_cast<const T*>(static_cast<const cls_Root<T>*>(p))->DBWrite(w);
  }

 private:
  const Derived& Self() const { return static_cast<const Derived&>(*this); }
  Derived& Self() { return static_cast<Derived&>(*this); }
};
