#pragma once
// A concrete shortcut to a member object of an object (an option slot, a sub-record, a nested
// container), reached through the shortcut of its owner. Self is the concrete class (kClassName,
// TypeId()); Impl the member's IMPLSC; OwnerRef the handle of the owner's shortcut; N the member's
// persistent field number in the owner's class.
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/persist/cls_ClassMetadata.h"
#include "platform/persist/cls_Family.h"
#include "platform/persist/cls_Visitor.h"
#include "platform/model/ddr_ShortcutIMPL.h"
#include "platform/base/nex_Exception.h"

// The object member number `number` of a registered class; refuses a class without one.
const cls_ScriptField& ddr_MemberField(const char* ownerClass, int number);

template <class Self, class Impl, class OwnerRef, int N>
class ddr_MemberShortcut : public Impl {
 public:
  using T = typename Impl::Addressed;
  using OwnerClass = typename OwnerRef::Addressed;
  static constexpr int kMemberNumber = N;

  explicit ddr_MemberShortcut(OwnerRef owner) : owner_(std::move(owner)) {}

  static Self Ctor(const cls_ReadVisitor& r) {
    if (r.GetTypeId() != Self::TypeId()) ddr_RefuseShortcutRecord(Self::kClassName, r.GetTypeId());
    std::optional<OwnerRef> owner;
    r.ReadObject("owner", [&](const cls_ReadVisitor& m) { owner.emplace(OwnerRef::Ctor(m)); });
    if (!owner) nex_ThrowCmd(std::string("A stored ") + Self::kClassName + " has no owner");
    Self s(*std::move(owner));
    s.SetUid(r.GetUid());
    return s;
  }

  const OwnerRef& Owner() const noexcept { return owner_; }

  Impl* Copy() const override { return mem_New<Self>(static_cast<const Self&>(*this)); }
  const char* ClassName() const override { return Self::kClassName; }
  unsigned ClassTypeId() const override { return Self::TypeId(); }
  cow_String Name() const override { return Field().scriptName; }
  std::vector<cow_String> Path() const override {
    std::vector<cow_String> p = owner_.Path();
    p.push_back(Name());
    return p;
  }

  // Null when the owner is missing or the member is absent.
  const T* ConstGet(const ddr_Model& model) const override {
    const OwnerClass* o = owner_.ConstGet(model);
    if (!o) return nullptr;
    const void* p = Field().child(static_cast<const cls_Root<OwnerClass>*>(o));
    return p ? static_cast<const T*>(static_cast<const cls_Root<T>*>(p)) : nullptr;
  }
  T& Get(ddr_Model& model) const override {
    const cls_ScriptField& f = Field();
    // Refuse before the owner's repository records a modification.
    if (const OwnerClass* c = owner_.ConstGet(model); c && !f.child(static_cast<const cls_Root<OwnerClass>*>(c)))
      ddr_RefuseShortcutPath(Path(), "the member is empty");
    OwnerClass& o = owner_.Get(model);
    return *static_cast<T*>(static_cast<cls_Root<T>*>(f.mutableChild(static_cast<cls_Root<OwnerClass>*>(&o))));
  }
  void DBWrite(const cls_WriteVisitor& w) const override {
    if (!w.StartWrite(Self::TypeId(), this->GetUid())) return;
    w.WriteObject("owner", &owner_, [](const void* p, const cls_WriteVisitor& v) {
      static_cast<const OwnerRef*>(p)->DBWrite(v);
    });
  }

 private:
  static const cls_ScriptField& Field() { return ddr_MemberField(OwnerClass::kClassName, N); }
  OwnerRef owner_;
};
