#pragma once
// The shortcut handle: what a module's <Class>Shortcut is. It holds one implementation (any class
// derived from Impl, the module's IMPLSC) and offers Name, Path, Get, ConstGet and DBWrite. Copies
// share the implementation, which never changes after construction.
#include <memory>
#include <optional>
#include <vector>

#include "platform/persist/cls_Visitor.h"
#include "platform/base/cow_COW.h"
#include "platform/model/ddr_ShortcutIMPL.h"

template <class Impl>
class ddr_Shortcut {
 public:
  using IMPL = Impl;
  using Addressed = typename Impl::Addressed;

  ddr_Shortcut() = default;  // empty: addresses nothing
  ddr_Shortcut(const Impl& impl) : impl_(impl) {}  // NOLINT: a concrete shortcut converts

  bool IsNull() const noexcept { return impl_.IsNull(); }
  const Impl& GetImpl() const {
    if (impl_.IsNull()) ddr_RefuseEmptyShortcut(Addressed::kClassName);
    return impl_.Get();
  }
  cow_String Name() const { return GetImpl().Name(); }
  std::vector<cow_String> Path() const { return GetImpl().Path(); }
  const Addressed* ConstGet(const ddr_Model& model) const { return GetImpl().ConstGet(model); }
  Addressed& Get(ddr_Model& model) const { return GetImpl().Get(model); }
  // Writes the implementation's own record: its type id says which concrete shortcut it is.
  void DBWrite(const cls_WriteVisitor& w) const { GetImpl().DBWrite(w); }

  friend bool operator==(const ddr_Shortcut& a, const ddr_Shortcut& b) {
    if (a.IsNull() || b.IsNull()) return a.IsNull() == b.IsNull();
    return a.impl_.Get().SameAddress(b.impl_.Get());
  }
  friend bool operator!=(const ddr_Shortcut& a, const ddr_Shortcut& b) { return !(a == b); }

 private:
  cow_COW<Impl, cow_Virtual<Impl>> impl_;
};

// Readers of concrete shortcuts that another module places under a handle it does not know (a
// module registers them from its initialize): type id -> a new implementation read from a record.
class ddr_ShortcutReaders {
 public:
  using ReadFn = ddr_ShortcutIMPLBase* (*)(const cls_ReadVisitor& r);
  static void Register(unsigned typeId, ReadFn fn);
  static ReadFn Find(unsigned typeId);
};

template <class Concrete>
void ddr_RegisterShortcutReader() {
  ddr_ShortcutReaders::Register(Concrete::TypeId(), [](const cls_ReadVisitor& r) -> ddr_ShortcutIMPLBase* {
    return mem_New<Concrete>(Concrete::Ctor(r));
  });
}

// The static Ctor of a handle class: rebuilds the concrete shortcut that a record names, one of
// Concrete (each with a TypeId() and a static Ctor of its own) or one registered with
// ddr_ShortcutReaders whose implementation derives from the handle's Impl.
template <class Handle, class... Concrete>
Handle ddr_ShortcutCtor(const cls_ReadVisitor& r) {
  const unsigned id = r.GetTypeId();
  std::optional<Handle> out;
  (void)((id == Concrete::TypeId() ? (out.emplace(Handle(Concrete::Ctor(r))), true) : false) || ...);
  if (out) return *std::move(out);
  if (ddr_ShortcutReaders::ReadFn read = ddr_ShortcutReaders::Find(id)) {
    std::unique_ptr<ddr_ShortcutIMPLBase, void (*)(ddr_ShortcutIMPLBase*)> impl(
        read(r), [](ddr_ShortcutIMPLBase* p) { cow_Destroy(p); });
    if (const auto* typed = dynamic_cast<const typename Handle::IMPL*>(impl.get())) return Handle(*typed);
  }
  ddr_RefuseShortcutRecord(Handle::kClassName, id);
}
