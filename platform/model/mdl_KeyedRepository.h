#pragma once
// The keyed repositories: copy-on-write objects under keys, in key order, in a persistent tree:
// a copied repository shares it, and its first change copies only the path to the changed key,
// not one node per element. Get for modification
// separates a shared element first and records "Modify"; Insert and Remove record theirs, the
// journal holding the key as text. Persistent fields: "keys" (a list) and "values" (a list of
// objects), written together as a keyed collection. A key policy says what a key is; the names
// of an instantiation (registered class name, type id, version, scripting name) come from a
// traits class the owning module specializes.
#include <charconv>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <type_traits>
#include <vector>

#include "platform/persist/cls_Family.h"
#include "platform/persist/cls_Record.h"
#include "platform/persist/cls_TypedMetadata.h"
#include "platform/base/cow_COW.h"
#include "platform/base/cow_PersistentMap.h"
#include "platform/base/cow_PersistentMapDiff.h"
#include "platform/model/mdl_RepositoryFace.h"
#include "platform/base/nex_Exception.h"
#include "platform/model/omu_ChangeHistory.h"

// The integer a key text stands for: its canonical decimal form within 32 bits ("7", "-2"; not
// "07", "+7" or "-0"), so that every key has exactly one text.
inline std::optional<std::int32_t> mdl_ParseIntegerKey(std::string_view text) {
  std::int32_t v = 0;
  const char* end = text.data() + text.size();
  auto [p, ec] = std::from_chars(text.data(), end, v);
  if (text.empty() || ec != std::errc() || p != end || std::to_string(v) != text) return std::nullopt;
  return v;
}

// Keys that are names, in natural order; an element needs a non-empty name.
struct mdl_NameKeys {
  using Key = cow_String;
  using Less = cow_NaturalLess;
  static constexpr int kListType = cls_AttrStringList;
  static std::vector<Key> Read(const cls_ReadVisitor& r) { return r.TakeStringList("keys"); }
  static void Write(const cls_WriteVisitor& w, const std::vector<Key>& keys) { w.WriteStringList("keys", keys); }
  static const cow_String& Text(const Key& k) { return k; }
  static std::string Shown(const Key& k) { return "\"" + k.str() + "\""; }
  static std::optional<Key> Parse(const cow_String& text) { return text; }
  static void Check(const Key& k, const char* repository) {
    if (k.empty()) nex_ThrowCmd(std::string("An element of ") + repository + " needs a name");
  }
  [[noreturn]] static void RefuseText(const cow_String&, const char*) { nex_ThrowCmd("unreachable"); }
};

// Keys that are 32-bit integers, in numeric order; addressed by their decimal text.
struct mdl_IntegerKeys {
  using Key = std::int32_t;
  using Less = std::less<Key>;
  static constexpr int kListType = cls_AttrIntList;
  static std::vector<Key> Read(const cls_ReadVisitor& r) { return r.ReadIntList("keys"); }
  static void Write(const cls_WriteVisitor& w, const std::vector<Key>& keys) { w.WriteIntList("keys", keys); }
  static cow_String Text(Key k) { return cow_String(std::to_string(k)); }
  static std::string Shown(Key k) { return std::to_string(k); }
  static std::optional<Key> Parse(const cow_String& text) { return mdl_ParseIntegerKey(text.view()); }
  static void Check(Key, const char*) {}
  [[noreturn]] static void RefuseText(const cow_String& text, const char* repository) {
    nex_ThrowCmd(std::string("The keys of ") + repository + " are 32-bit integers, not \"" + text.str() + "\"");
  }
};

template <class T, class KeyPolicy, class NamesT>
class mdl_KeyedRepository : public mem_Allocated,
                            public mdl_RepositoryFace<mdl_KeyedRepository<T, KeyPolicy, NamesT>, T> {
 public:
  using Element = T;
  using Key = typename KeyPolicy::Key;
  using Names = NamesT;
  using Handle = cow_COW<T, cow_Virtual<T>>;
  using Map = cow_PersistentMap<Key, Handle, typename KeyPolicy::Less>;
  static constexpr const char* kClassName = NamesT::kClassName;
  static constexpr unsigned TypeId() { return NamesT::TypeId(); }
  static constexpr int kVersion = NamesT::kVersion;

  mdl_KeyedRepository() = default;
  mdl_KeyedRepository(const mdl_KeyedRepository&) = default;
  mdl_KeyedRepository& operator=(const mdl_KeyedRepository&) = default;
  // Declared, because the virtual destructor would otherwise leave only the copy: a repository
  // read from a file is moved into its wrapper, not copied element by element.
  mdl_KeyedRepository(mdl_KeyedRepository&&) = default;
  mdl_KeyedRepository& operator=(mdl_KeyedRepository&&) = default;
  explicit mdl_KeyedRepository(const cls_ReadVisitor& r) : uid_(r.GetUid()) {
    std::vector<Key> keys = KeyPolicy::Read(r);
    // No command can create or address an element without a name; a file may not bring one in.
    if constexpr (std::is_same_v<Key, cow_String>)
      for (const Key& k : keys)
        if (k.empty()) nex_ThrowCmd(std::string("The stored container ") + kClassName + " holds an empty key");
    // Keys are stored in the map's order, so the tree is built in one pass. How far that order
    // holds is counted now, while the keys are fresh in the cache, not after the elements load.
    const typename KeyPolicy::Less less;
    std::size_t ordered = keys.empty() ? 0 : 1;
    while (ordered < keys.size() && less(keys[ordered - 1], keys[ordered])) ++ordered;
    std::vector<Handle> values;
    values.reserve(keys.size());  // a file's keys and elements come in pairs
    r.ReadObjectList("values", [&](std::size_t, const cls_ReadVisitor* e) {
      if (!e) nex_ThrowCmd(std::string("The stored container ") + kClassName + " holds a null element");
      values.emplace_back(cls_NewFromReader<T>(*e));
    });
    if (keys.size() != values.size())
      nex_ThrowCmd(std::string("The stored container ") + kClassName + " has " + std::to_string(keys.size()) +
                   " keys for " + std::to_string(values.size()) + " elements");
    // Keys out of that order (a file another tool wrote) go in one by one from the first of them.
    typename Map::Builder sorted;
    std::size_t i = 0;
    for (; i < ordered; ++i) sorted.AppendGreater(std::move(keys[i]), std::move(values[i]));
    items_ = std::move(sorted).Build();
    for (; i < keys.size(); ++i) {
      if (items_.count(keys[i]))
        nex_ThrowCmd(std::string("The stored container ") + kClassName + " holds the key " + KeyPolicy::Shown(keys[i]) +
                     " twice");
      items_.insert_or_assign(std::move(keys[i]), std::move(values[i]));
    }
  }
  void DBWrite(const cls_WriteVisitor& w) const {
    if (!w.StartWrite(TypeId(), uid_)) return;
    w.WriteKeyedObjects("keys", "values", Elements(*this));
  }
  // The file keeps a repository's elements as rows of their own rather than as two lists in its
  // row, so that a save in place touches the elements that changed and not the others.
  static constexpr bool kKeepsElementsApart = true;
  virtual ~mdl_KeyedRepository() = default;
  virtual mdl_KeyedRepository* Copy() const { return mem_New<mdl_KeyedRepository>(*this); }
  static void CowDtor(void* p) { cow_Destroy(static_cast<mdl_KeyedRepository*>(p)); }
  static void InitializeMetadata(cls_ClassRegistrar& registrar) {
    static const cls_AttributeSpec kAttrs[] = {{0, "keys", KeyPolicy::kListType, cls_List1D},
                                               {1, "values", cls_AttrObjectList, cls_List1D}};
    cls_RegisterTyped<mdl_KeyedRepository>(registrar, kAttrs);
  }
  const cls_Uid& GetUid() const noexcept { return uid_; }

  friend bool operator==(const mdl_KeyedRepository& a, const mdl_KeyedRepository& b) {
    return a.uid_ == b.uid_ && a.items_ == b.items_;
  }

  // --- typed use ---
  std::size_t Size() const noexcept { return items_.size(); }
  bool Has(const Key& key) const { return items_.count(key) != 0; }
  const T* ConstGet(const Key& key) const {
    const Handle* h = items_.Find(key);
    return h ? &h->Get() : nullptr;
  }
  // For modification: separates a shared element and records "Modify".
  T& Get(const Key& key) {
    Handle* h = items_.Modify(key);  // copies the path to the key if the tree is shared
    if (!h) this->RefuseMissingKey(KeyPolicy::Text(key));
    T& obj = h->Get();
    Record("Modify", key);
    return obj;
  }
  // Puts the value under the key, replacing any element there.
  void Insert(const Key& key, const T& value) { InsertHandle(key, Handle(value)); }
  void InsertHandle(const Key& key, Handle h) {
    KeyPolicy::Check(key, Names::kRepositoryName);
    items_.insert_or_assign(key, std::move(h));
    Record("Insert", key);
  }
  bool Remove(const Key& key) {
    if (!items_.erase(key)) return false;
    Record("Remove", key);
    return true;
  }
  const Map& Items() const noexcept { return items_; }
  const Handle* FindHandle(const Key& key) const { return items_.Find(key); }

  // --- mdl_Repository: keys as their text; the rest of the face comes from the typed use ---
  std::vector<cow_String> Keys() const override {
    std::vector<cow_String> keys;
    keys.reserve(items_.size());
    for (const auto& kv : items_) keys.push_back(KeyPolicy::Text(kv.first));
    return keys;
  }
  void ForEachElement(mdl_Repository::ElementVisitor visit, void* context) const override {
    for (const auto& [k, h] : items_) {
      const T& obj = h.Get();
      visit(context, KeyPolicy::Text(k), static_cast<const cls_Root<T>*>(&obj), cls_ClassOf(obj));
    }
  }
  static std::optional<Key> ParseKey(const cow_String& text) { return KeyPolicy::Parse(text); }
  static Key KeyOf(const cow_String& text) {
    auto k = KeyPolicy::Parse(text);
    if (!k) KeyPolicy::RefuseText(text, Names::kRepositoryName);
    return *k;
  }

 private:
  // The elements as a visitor stores them; an older state is another repository of this class.
  class Elements final : public cls_KeyedObjects {
   public:
    explicit Elements(const mdl_KeyedRepository& repo) : repo_(repo) {}
    std::size_t Size() const override { return repo_.items_.size(); }
    bool IntegerKeys() const override { return !std::is_same_v<Key, cow_String>; }
    void ForEach(const Visit& visit) const override {
      for (const auto& [k, h] : repo_.items_) visit(KeyOfElement(k), Pointer(h));
    }
    const void* Self() const override { return &repo_; }
    void DiffFrom(const void* older, const Change& change) const override {
      const auto& old = static_cast<const mdl_KeyedRepository*>(older)->items_;
      cow_DiffFrom(old, repo_.items_, [&](const Key& k, const Handle* was, const Handle* now) {
        const void* a = was ? Pointer(*was) : nullptr;
        const void* b = now ? Pointer(*now) : nullptr;
        if (a != b) change(KeyOfElement(k), a, b);  // a copied node may still hold the same element
      });
    }
    cls_WriteFn WriteFn() const override { return &WriteElement; }

   private:
    static const void* Pointer(const Handle& h) { return static_cast<const cls_Root<T>*>(&h.Get()); }
    static cls_ElementKey KeyOfElement(const Key& k) {
      if constexpr (std::is_same_v<Key, cow_String>) return cls_ElementKey{&k, 0};
      else return cls_ElementKey{nullptr, k};
    }
    const mdl_KeyedRepository& repo_;
  };
  using mdl_RepositoryFace<mdl_KeyedRepository, T>::WriteElement;
  static void Record(const char* operation, const Key& key) {
    omu_ChangeHistory::Instance().Record(kClassName, operation, KeyPolicy::Text(key));
  }
  Map items_;
  cls_Uid uid_;
};
