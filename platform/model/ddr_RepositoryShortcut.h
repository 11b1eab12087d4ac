#pragma once
// A concrete shortcut to a repository that the model holds as an extension (a container "in
// model"), found by the repository's scripting name. Self is the concrete class (kClassName,
// TypeId()); Impl is the container's IMPLSC, whose Addressed class is the container.
#include <string>
#include <vector>

#include "platform/persist/cls_Visitor.h"
#include "platform/model/ddr_Model.h"
#include "platform/model/ddr_ShortcutIMPL.h"
#include "platform/model/mdl_Repository.h"

template <class Self, class Impl>
class ddr_RepositoryShortcut : public Impl {
 public:
  using Container = typename Impl::Addressed;

  ddr_RepositoryShortcut() = default;

  static Self Ctor(const cls_ReadVisitor& r) {
    if (r.GetTypeId() != Self::TypeId()) ddr_RefuseShortcutRecord(Self::kClassName, r.GetTypeId());
    const cow_String stored = r.ReadString("repository");
    if (stored != RepositoryName())
      ddr_RefuseShortcutPath({stored}, std::string("a stored ") + Self::kClassName + " must name \"" +
                                           RepositoryName() + "\"");
    Self s;
    s.SetUid(r.GetUid());
    return s;
  }

  static const char* RepositoryName() { return Container::Names::kRepositoryName; }

  Impl* Copy() const override { return mem_New<Self>(static_cast<const Self&>(*this)); }
  const char* ClassName() const override { return Self::kClassName; }
  unsigned ClassTypeId() const override { return Self::TypeId(); }
  cow_String Name() const override { return RepositoryName(); }
  std::vector<cow_String> Path() const override { return {Name()}; }

  const Container* ConstGet(const ddr_Model& model) const override {
    return dynamic_cast<const Container*>(model.FindRepository(RepositoryName()));
  }
  Container& Get(ddr_Model& model) const override {
    auto* c = dynamic_cast<Container*>(model.ModifyRepository(RepositoryName()));
    if (!c) ddr_RefuseShortcutPath(Path(), "the model has no such repository");
    return *c;
  }
  void DBWrite(const cls_WriteVisitor& w) const override {
    if (!w.StartWrite(Self::TypeId(), this->GetUid())) return;
    w.WriteString("repository", Name());
  }
};
