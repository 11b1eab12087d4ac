#pragma once
// A container wrapped as a model extension; persistent field "extension". The names of an
// instantiation come from mdl_WrapperTraits<C> (kClassName, TypeId(), kVersion), which the
// module that registers the extension specializes.
#include <string>

#include "platform/persist/cls_Family.h"
#include "platform/persist/cls_TypedMetadata.h"
#include "platform/base/cow_COW.h"
#include "platform/model/mdl_Extension.h"
#include "platform/model/mdl_Repository.h"

template <class C>
struct mdl_WrapperTraits;

template <class C>
class mdl_ExtensionWrapper : public mdl_Extension {
 public:
  using RootClass = mdl_Extension;
  using Names = mdl_WrapperTraits<C>;
  static constexpr const char* kClassName = Names::kClassName;
  static constexpr unsigned TypeId() { return Names::TypeId(); }
  static constexpr int kVersion = Names::kVersion;

  mdl_ExtensionWrapper() = default;
  explicit mdl_ExtensionWrapper(const C& extension) : extension_(extension) {}
  explicit mdl_ExtensionWrapper(const cls_ReadVisitor& r) : uid_(r.GetUid()) {
    bool present = r.ReadObject("extension", [&](const cls_ReadVisitor& m) { extension_ = C(m); });
    if (!present) nex_ThrowCmd(std::string("The stored ") + kClassName + " has no extension");
  }
  void DBWrite(const cls_WriteVisitor& w) const override {
    if (!w.StartWrite(TypeId(), uid_)) return;
    w.WriteObject("extension", &extension_, [](const void* p, const cls_WriteVisitor& v) {
      static_cast<const C*>(p)->DBWrite(v);
    });
  }
  mdl_ExtensionWrapper* Copy() const override { return mem_New<mdl_ExtensionWrapper>(*this); }
  static void CowDtor(void* p) { cow_Destroy(static_cast<mdl_Extension*>(p)); }
  static void InitializeMetadata(cls_ClassRegistrar& registrar) {
    static const cls_AttributeSpec kAttrs[] = {{0, "extension", cls_AttrObject, cls_Single}};
    cls_RegisterTyped<mdl_ExtensionWrapper>(registrar, kAttrs);
  }
  unsigned ClassTypeId() const override { return TypeId(); }
  const cls_Uid& GetUid() const noexcept { return uid_; }

  C& Extension() noexcept { return extension_; }
  const C& Extension() const noexcept { return extension_; }
  mdl_Repository* Repository() override { return &extension_; }
  const mdl_Repository* Repository() const override { return &extension_; }
  bool Equals(const mdl_Extension& o) const override {
    auto* w = dynamic_cast<const mdl_ExtensionWrapper*>(&o);
    return w && *this == *w;
  }
  friend bool operator==(const mdl_ExtensionWrapper& a, const mdl_ExtensionWrapper& b) {
    return a.uid_ == b.uid_ && a.extension_ == b.extension_;
  }

 private:
  C extension_;
  cls_Uid uid_;
};
