#pragma once
// A keyed repository of fields that the model holds directly as one of its extensions: the
// container record is the extension record, so a model's fields are stored as one container row
// ("keys", "values") and its elements.
#include <string>

#include "platform/model/mdl_Extension.h"
#include "platform/model/mdl_MapString2ObjCow.h"

template <class T>
class kfdC_FieldContainer : public mdl_Extension {
 public:
  using RootClass = mdl_Extension;
  using Map = mdl_MapString2ObjCow<T>;
  using Element = T;
  using Key = typename Map::Key;
  using Names = typename Map::Names;
  static constexpr const char* kClassName = Map::kClassName;
  static constexpr int kVersion = Map::kVersion;
  static constexpr unsigned TypeId() { return Map::TypeId(); }
  // Written as the repository writes itself, and kept apart in the file like it.
  static constexpr bool kKeepsElementsApart = Map::kKeepsElementsApart;

  kfdC_FieldContainer() = default;
  explicit kfdC_FieldContainer(const cls_ReadVisitor& r) : map_(r) {}
  void DBWrite(const cls_WriteVisitor& w) const override { map_.DBWrite(w); }
  kfdC_FieldContainer* Copy() const override { return mem_New<kfdC_FieldContainer>(*this); }
  static void CowDtor(void* p) { cow_Destroy(static_cast<mdl_Extension*>(p)); }
  static void InitializeMetadata(cls_ClassRegistrar& registrar) {
    static const cls_AttributeSpec kAttrs[] = {{0, "keys", cls_AttrStringList, cls_List1D},
                                               {1, "values", cls_AttrObjectList, cls_List1D}};
    cls_RegisterTyped<kfdC_FieldContainer>(registrar, kAttrs);
  }
  unsigned ClassTypeId() const override { return TypeId(); }
  const cls_Uid& GetUid() const noexcept { return map_.GetUid(); }

  // The typed repository: Get for modification, Insert and Remove record their changes.
  Map& Fields() noexcept { return map_; }
  const Map& Fields() const noexcept { return map_; }
  mdl_Repository* Repository() override { return &map_; }
  const mdl_Repository* Repository() const override { return &map_; }
  bool Equals(const mdl_Extension& o) const override {
    auto* c = dynamic_cast<const kfdC_FieldContainer*>(&o);
    return c && *this == *c;
  }
  friend bool operator==(const kfdC_FieldContainer& a, const kfdC_FieldContainer& b) { return a.map_ == b.map_; }

 private:
  Map map_;
};
