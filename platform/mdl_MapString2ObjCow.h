#pragma once
// A repository of copy-on-write objects keyed by name, in natural key order. Get for
// modification separates a shared element first and records "Modify"; Insert and Remove record
// theirs. The names of an instantiation (registered class name, type id, scripting name) come
// from mdl_MapTraits<T>, which the module that owns the container specializes.
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "platform/cls_Family.h"
#include "platform/cls_Record.h"
#include "platform/cls_TypedMetadata.h"
#include "platform/cow_COW.h"
#include "platform/mdl_Repository.h"
#include "platform/nex_Exception.h"
#include "platform/omu_ChangeHistory.h"

template <class T>
struct mdl_MapTraits;  // kClassName, TypeId(), kRepositoryName

template <class T>
class mdl_MapString2ObjCow : public mem_Allocated, public mdl_Repository {
 public:
  using Element = T;
  using Key = cow_String;
  using Handle = cow_COW<T, cow_Virtual<T>>;
  using Names = mdl_MapTraits<T>;
  using Map = std::map<cow_String, Handle, cow_NaturalLess>;
  static constexpr const char* kClassName = Names::kClassName;
  static constexpr unsigned TypeId() { return Names::TypeId(); }
  static constexpr int kVersion = Names::kVersion;

  mdl_MapString2ObjCow() = default;
  mdl_MapString2ObjCow(const mdl_MapString2ObjCow&) = default;
  mdl_MapString2ObjCow& operator=(const mdl_MapString2ObjCow&) = default;
  explicit mdl_MapString2ObjCow(const cls_ReadVisitor& r) : uid_(r.GetUid()) {
    std::vector<cow_String> keys = r.ReadStringList("keys");
    std::vector<Handle> values;
    r.ReadObjectList("values", [&](std::size_t, const cls_ReadVisitor* e) {
      if (!e) nex_ThrowCmd(std::string("The stored container ") + kClassName + " holds a null element");
      values.emplace_back(cls_NewFromReader<T>(*e));
    });
    if (keys.size() != values.size())
      nex_ThrowCmd(std::string("The stored container ") + kClassName + " has " + std::to_string(keys.size()) +
                   " keys for " + std::to_string(values.size()) + " elements");
    // Keys are stored in the map's order, so each goes at the end: one comparison, not a search.
    for (std::size_t i = 0; i < keys.size(); ++i) {
      const std::size_t before = items_.size();
      items_.emplace_hint(items_.end(), keys[i], std::move(values[i]));
      if (items_.size() == before)
        nex_ThrowCmd(std::string("The stored container ") + kClassName + " holds the key \"" + keys[i].str() + "\" twice");
    }
  }
  void DBWrite(const cls_WriteVisitor& w) const {
    if (!w.StartWrite(TypeId(), uid_)) return;
    std::vector<cow_String> keys;
    std::vector<const void*> values;
    keys.reserve(items_.size());
    values.reserve(items_.size());
    for (const auto& [k, h] : items_) {
      keys.push_back(k);
      values.push_back(static_cast<const cls_Root<T>*>(&h.Get()));
    }
    w.WriteStringList("keys", keys);
    w.WriteObjectList("values", values, &WriteElement);
  }
  virtual ~mdl_MapString2ObjCow() = default;
  virtual mdl_MapString2ObjCow* Copy() const { return mem_New<mdl_MapString2ObjCow>(*this); }
  static void CowDtor(void* p) { cow_Destroy(static_cast<mdl_MapString2ObjCow*>(p)); }
  static void InitializeMetadata(cls_ClassRegistrar& registrar) {
    static const cls_AttributeSpec kAttrs[] = {{0, "keys", cls_AttrStringList, cls_List1D},
                                               {1, "values", cls_AttrObjectList, cls_List1D}};
    cls_RegisterTyped<mdl_MapString2ObjCow>(registrar, kAttrs);
  }
  const cls_Uid& GetUid() const noexcept { return uid_; }

  friend bool operator==(const mdl_MapString2ObjCow& a, const mdl_MapString2ObjCow& b) {
    return a.uid_ == b.uid_ && a.items_ == b.items_;
  }

  // --- typed use ---
  std::size_t Size() const noexcept { return items_.size(); }
  bool Contains(const cow_String& key) const override { return items_.count(key) != 0; }
  const T* ConstGet(const cow_String& key) const {
    auto it = items_.find(key);
    return it == items_.end() ? nullptr : &it->second.Get();
  }
  // For modification: separates a shared element and records "Modify".
  T& Get(const cow_String& key) {
    auto it = items_.find(key);
    if (it == items_.end()) RefuseMissing(key);
    T& obj = it->second.Get();
    omu_ChangeHistory::Instance().Record(kClassName, "Modify", key);
    return obj;
  }
  void Insert(const cow_String& key, const T& value) { InsertHandle(key, Handle(value)); }
  void InsertHandle(const cow_String& key, Handle h) {
    if (key.empty()) nex_ThrowCmd(std::string("An element of ") + Names::kRepositoryName + " needs a name");
    items_.insert_or_assign(key, std::move(h));
    omu_ChangeHistory::Instance().Record(kClassName, "Insert", key);
  }
  bool Remove(const cow_String& key) {
    if (!items_.erase(key)) return false;
    omu_ChangeHistory::Instance().Record(kClassName, "Remove", key);
    return true;
  }
  const Map& Items() const noexcept { return items_; }
  const Handle* FindHandle(const cow_String& key) const {
    auto it = items_.find(key);
    return it == items_.end() ? nullptr : &it->second;
  }

  // --- mdl_Repository ---
  const char* RepositoryName() const override { return Names::kRepositoryName; }
  std::size_t Count() const override { return items_.size(); }
  const cls_ClassMetadata& ElementClass() const override { return cls_MetadataOf(T::kClassName); }
  std::vector<cow_String> Keys() const override {
    std::vector<cow_String> keys;
    keys.reserve(items_.size());
    for (const auto& kv : items_) keys.push_back(kv.first);
    return keys;
  }
  const void* Find(const cow_String& key, const cls_ClassMetadata** cls) const override {
    const T* obj = ConstGet(key);
    if (obj && cls) *cls = &cls_ClassOf(*obj);
    return obj ? static_cast<const cls_Root<T>*>(obj) : nullptr;
  }
  void* Modify(const cow_String& key, const cls_ClassMetadata** cls) override {
    T& obj = Get(key);
    if (cls) *cls = &cls_ClassOf(obj);
    return static_cast<cls_Root<T>*>(&obj);
  }
  void InsertNew(const cow_String& key, void* owned) override {
    InsertHandle(key, Handle(static_cast<T*>(static_cast<cls_Root<T>*>(owned))));
  }
  bool RemoveKey(const cow_String& key) override { return Remove(key); }

 private:
  static void WriteElement(const void* p, const cls_WriteVisitor& w) {
    static_cast<const T*>(static_cast<const cls_Root<T>*>(p))->DBWrite(w);
  }
  [[noreturn]] static void RefuseMissing(const cow_String& key) {
    nex_ThrowCmd(std::string("There is no \"") + key.str() + "\" in " + Names::kRepositoryName);
  }
  Map items_;
  cls_Uid uid_;
};
