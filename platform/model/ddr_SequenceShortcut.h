#pragma once
// A concrete shortcut to one element of a sequence (a repository keyed by name or integer, or a
// positional list), reached through the shortcut of its owner. Self is the concrete class
// (kClassName, TypeId()); Impl the element's IMPLSC; OwnerRef the handle of the container's
// shortcut, whose Addressed class offers Key, ConstGet(key) and Get(key).
#include <cstdint>
#include <optional>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "platform/persist/cls_Visitor.h"
#include "platform/model/ddr_ShortcutIMPL.h"
#include "platform/base/nex_Exception.h"

template <class K>
struct ddr_SequenceKey;

template <>
struct ddr_SequenceKey<cow_String> {
  static cow_String Text(const cow_String& k) { return k; }
  static void Write(const cls_WriteVisitor& w, const cow_String& k) { w.WriteString("key", k); }
  static cow_String Read(const cls_ReadVisitor& r) { return r.ReadString("key"); }
};

template <>
struct ddr_SequenceKey<std::int32_t> {
  static cow_String Text(std::int32_t k) { return cow_String(std::to_string(k)); }
  static void Write(const cls_WriteVisitor& w, std::int32_t k) { w.WriteInt("key", k); }
  static std::int32_t Read(const cls_ReadVisitor& r) { return r.ReadInt("key"); }
};

template <class Self, class Impl, class OwnerRef>
class ddr_SequenceShortcut : public Impl {
 public:
  using T = typename Impl::Addressed;
  using Container = typename OwnerRef::Addressed;
  using Key = typename Container::Key;
  using KeyIO = ddr_SequenceKey<Key>;
  static_assert(std::is_base_of_v<T, typename Container::Element> || std::is_base_of_v<typename Container::Element, T>,
                "the shortcut must address the container's element class or one of its family");

  ddr_SequenceShortcut(OwnerRef owner, Key key) : owner_(std::move(owner)), key_(std::move(key)) {}

  static Self Ctor(const cls_ReadVisitor& r) {
    if (r.GetTypeId() != Self::TypeId()) ddr_RefuseShortcutRecord(Self::kClassName, r.GetTypeId());
    std::optional<OwnerRef> owner;
    r.ReadObject("owner", [&](const cls_ReadVisitor& m) { owner.emplace(OwnerRef::Ctor(m)); });
    if (!owner) nex_ThrowCmd(std::string("A stored ") + Self::kClassName + " has no owner");
    Self s(*std::move(owner), KeyIO::Read(r));
    s.SetUid(r.GetUid());
    return s;
  }

  const OwnerRef& Owner() const noexcept { return owner_; }
  const Key& GetKey() const noexcept { return key_; }

  Impl* Copy() const override { return mem_New<Self>(static_cast<const Self&>(*this)); }
  const char* ClassName() const override { return Self::kClassName; }
  unsigned ClassTypeId() const override { return Self::TypeId(); }
  cow_String Name() const override { return KeyIO::Text(key_); }
  std::vector<cow_String> Path() const override {
    std::vector<cow_String> p = owner_.Path();
    p.push_back(Name());
    return p;
  }

  const T* ConstGet(const ddr_Model& model) const override {
    const Container* c = owner_.ConstGet(model);
    return c ? Narrow(c->ConstGet(key_)) : nullptr;
  }
  T& Get(ddr_Model& model) const override {
    Container& c = owner_.Get(model);
    if (const auto* e = c.ConstGet(key_); e && !Narrow(e))
      ddr_RefuseShortcutPath(Path(), std::string("the element is not a ") + T::kClassName);
    return *Narrow(&c.Get(key_));  // the container refuses a missing key before it records anything
  }
  void DBWrite(const cls_WriteVisitor& w) const override {
    if (!w.StartWrite(Self::TypeId(), this->GetUid())) return;
    w.WriteObject("owner", &owner_, [](const void* p, const cls_WriteVisitor& v) {
      static_cast<const OwnerRef*>(p)->DBWrite(v);
    });
    KeyIO::Write(w, key_);
  }

 private:
  // A shortcut to one kind of a polymorphic family addresses only elements of that kind.
  template <class E>
  static auto* Narrow(E* e) {
    using Out = std::conditional_t<std::is_const_v<E>, const T, T>;
    if constexpr (std::is_base_of_v<T, typename Container::Element>) return static_cast<Out*>(e);
    else return dynamic_cast<Out*>(e);
  }
  OwnerRef owner_;
  Key key_;
};
