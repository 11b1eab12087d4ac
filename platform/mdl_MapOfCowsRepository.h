#pragma once
// A repository of copy-on-write objects keyed by a 32-bit integer, in key order. Like
// mdl_MapString2ObjCow, Get for modification separates a shared element and records "Modify";
// Insert and Remove record theirs; the journal holds the key as its decimal text. The names of an
// instantiation come from mdl_MapOfCowsTraits<T> (kClassName, kRepositoryName, kVersion, TypeId()),
// which the module that owns the container specializes.
#include <charconv>
#include <cstdint>
#include <map>
#include <optional>
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
struct mdl_MapOfCowsTraits;

// The integer a key text stands for: its canonical decimal form within 32 bits ("7", "-2"; not
// "07", "+7" or "-0"), so that every key has exactly one text.
inline std::optional<std::int32_t> mdl_ParseIntegerKey(std::string_view text) {
  std::int32_t v = 0;
  const char* end = text.data() + text.size();
  auto [p, ec] = std::from_chars(text.data(), end, v);
  if (text.empty() || ec != std::errc() || p != end || std::to_string(v) != text) return std::nullopt;
  return v;
}

template <class T>
class mdl_MapOfCowsRepository : public mem_Allocated, public mdl_Repository {
 public:
  using Element = T;
  using Key = std::int32_t;
  using Handle = cow_COW<T, cow_Virtual<T>>;
  using Names = mdl_MapOfCowsTraits<T>;
  using Map = std::map<Key, Handle>;
  static constexpr const char* kClassName = Names::kClassName;
  static constexpr unsigned TypeId() { return Names::TypeId(); }
  static constexpr int kVersion = Names::kVersion;

  mdl_MapOfCowsRepository() = default;
  mdl_MapOfCowsRepository(const mdl_MapOfCowsRepository&) = default;
  mdl_MapOfCowsRepository& operator=(const mdl_MapOfCowsRepository&) = default;
  explicit mdl_MapOfCowsRepository(const cls_ReadVisitor& r) : uid_(r.GetUid()) {
    std::vector<std::int32_t> keys = r.ReadIntList("keys");
    std::vector<Handle> values;
    r.ReadObjectList("values", [&](std::size_t, const cls_ReadVisitor* e) {
      if (!e) nex_ThrowCmd(std::string("The stored container ") + kClassName + " holds a null element");
      values.emplace_back(cls_NewFromReader<T>(*e));
    });
    if (keys.size() != values.size())
      nex_ThrowCmd(std::string("The stored container ") + kClassName + " has " + std::to_string(keys.size()) +
                   " keys for " + std::to_string(values.size()) + " elements");
    for (std::size_t i = 0; i < keys.size(); ++i)
      if (!items_.emplace(keys[i], values[i]).second)
        nex_ThrowCmd(std::string("The stored container ") + kClassName + " holds the key " + std::to_string(keys[i]) +
                     " twice");
  }
  void DBWrite(const cls_WriteVisitor& w) const {
    if (!w.StartWrite(TypeId(), uid_)) return;
    std::vector<std::int32_t> keys;
    std::vector<const void*> values;
    keys.reserve(items_.size());
    values.reserve(items_.size());
    for (const auto& [k, h] : items_) {
      keys.push_back(k);
      values.push_back(static_cast<const cls_Root<T>*>(&h.Get()));
    }
    w.WriteIntList("keys", keys);
    w.WriteObjectList("values", values, &WriteElement);
  }
  virtual ~mdl_MapOfCowsRepository() = default;
  virtual mdl_MapOfCowsRepository* Copy() const { return mem_New<mdl_MapOfCowsRepository>(*this); }
  static void CowDtor(void* p) { cow_Destroy(static_cast<mdl_MapOfCowsRepository*>(p)); }
  static void InitializeMetadata(cls_ClassRegistrar& registrar) {
    static const cls_AttributeSpec kAttrs[] = {{0, "keys", cls_AttrIntList, cls_List1D},
                                               {1, "values", cls_AttrObjectList, cls_List1D}};
    cls_RegisterTyped<mdl_MapOfCowsRepository>(registrar, kAttrs);
  }
  const cls_Uid& GetUid() const noexcept { return uid_; }

  friend bool operator==(const mdl_MapOfCowsRepository& a, const mdl_MapOfCowsRepository& b) {
    return a.uid_ == b.uid_ && a.items_ == b.items_;
  }

  // --- typed use ---
  std::size_t Size() const noexcept { return items_.size(); }
  bool Contains(Key key) const { return items_.count(key) != 0; }
  const T* ConstGet(Key key) const {
    auto it = items_.find(key);
    return it == items_.end() ? nullptr : &it->second.Get();
  }
  // For modification: separates a shared element and records "Modify".
  T& Get(Key key) {
    auto it = items_.find(key);
    if (it == items_.end()) RefuseMissing(std::to_string(key));
    T& obj = it->second.Get();
    Record("Modify", key);
    return obj;
  }
  // Puts the value under the key, replacing any element there.
  void Insert(Key key, const T& value) { InsertHandle(key, Handle(value)); }
  void InsertHandle(Key key, Handle h) {
    items_.insert_or_assign(key, std::move(h));
    Record("Insert", key);
  }
  bool Remove(Key key) {
    if (!items_.erase(key)) return false;
    Record("Remove", key);
    return true;
  }
  const Map& Items() const noexcept { return items_; }
  const Handle* FindHandle(Key key) const {
    auto it = items_.find(key);
    return it == items_.end() ? nullptr : &it->second;
  }

  // --- mdl_Repository: keys as their decimal text ---
  const char* RepositoryName() const override { return Names::kRepositoryName; }
  std::size_t Count() const override { return items_.size(); }
  const cls_ClassMetadata& ElementClass() const override { return cls_MetadataOf(T::kClassName); }
  std::vector<cow_String> Keys() const override {
    std::vector<cow_String> keys;
    keys.reserve(items_.size());
    for (const auto& kv : items_) keys.emplace_back(std::to_string(kv.first));
    return keys;
  }
  bool Contains(const cow_String& key) const override {
    auto k = mdl_ParseIntegerKey(key.view());
    return k && Contains(*k);
  }
  const void* Find(const cow_String& key, const cls_ClassMetadata** cls) const override {
    auto k = mdl_ParseIntegerKey(key.view());
    const T* obj = k ? ConstGet(*k) : nullptr;
    if (obj && cls) *cls = &cls_ClassOf(*obj);
    return obj ? static_cast<const cls_Root<T>*>(obj) : nullptr;
  }
  void* Modify(const cow_String& key, const cls_ClassMetadata** cls) override {
    T& obj = Get(KeyOf(key));
    if (cls) *cls = &cls_ClassOf(obj);
    return static_cast<cls_Root<T>*>(&obj);
  }
  void InsertNew(const cow_String& key, void* owned) override {
    Handle h(static_cast<T*>(static_cast<cls_Root<T>*>(owned)));  // owns it from here, even on refusal
    InsertHandle(KeyOf(key), std::move(h));
  }
  bool RemoveKey(const cow_String& key) override {
    auto k = mdl_ParseIntegerKey(key.view());
    return k && Remove(*k);
  }

 private:
  static void WriteElement(const void* p, const cls_WriteVisitor& w) {
    static_cast<const T*>(static_cast<const cls_Root<T>*>(p))->DBWrite(w);
  }
  static Key KeyOf(const cow_String& key) {
    auto k = mdl_ParseIntegerKey(key.view());
    if (!k)
      nex_ThrowCmd(std::string("The keys of ") + Names::kRepositoryName + " are 32-bit integers, not \"" + key.str() +
                   "\"");
    return *k;
  }
  static void Record(const char* operation, Key key) {
    omu_ChangeHistory::Instance().Record(kClassName, operation, cow_String(std::to_string(key)));
  }
  [[noreturn]] static void RefuseMissing(const std::string& key) {
    nex_ThrowCmd("There is no \"" + key + "\" in " + Names::kRepositoryName);
  }
  Map items_;
  cls_Uid uid_;
};
