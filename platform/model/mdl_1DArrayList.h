#pragma once
// A positional list of copy-on-write objects: the repository form of an ordered sequence, its
// keys the positions 0 to n-1. Get for modification separates a shared element and records
// "Modify"; Insert (before a position, or at the end) and Remove record theirs; the journal holds
// the position as its decimal text. The names of an instantiation come from
// mdl_1DArrayListTraits<T> (kClassName, kRepositoryName, kVersion, TypeId()).
#include <cstdint>
#include <string>
#include <vector>

#include "platform/persist/cls_Family.h"
#include "platform/persist/cls_Record.h"
#include "platform/persist/cls_TypedMetadata.h"
#include "platform/base/cow_COW.h"
#include "platform/model/mdl_KeyedRepository.h"
#include "platform/model/mdl_RepositoryFace.h"
#include "platform/base/nex_Exception.h"
#include "platform/model/omu_ChangeHistory.h"

template <class T>
struct mdl_1DArrayListTraits;

template <class T>
class mdl_1DArrayList : public mem_Allocated, public mdl_RepositoryFace<mdl_1DArrayList<T>, T> {
 public:
  using Element = T;
  using Key = std::int32_t;
  using Handle = cow_COW<T, cow_Virtual<T>>;
  using Names = mdl_1DArrayListTraits<T>;
  static constexpr const char* kClassName = Names::kClassName;
  static constexpr unsigned TypeId() { return Names::TypeId(); }
  static constexpr int kVersion = Names::kVersion;

  mdl_1DArrayList() = default;
  mdl_1DArrayList(const mdl_1DArrayList&) = default;
  mdl_1DArrayList& operator=(const mdl_1DArrayList&) = default;
  // Declared, because the virtual destructor would otherwise leave only the copy.
  mdl_1DArrayList(mdl_1DArrayList&&) = default;
  mdl_1DArrayList& operator=(mdl_1DArrayList&&) = default;
  explicit mdl_1DArrayList(const cls_ReadVisitor& r) : uid_(r.GetUid()) {
    r.ReadObjectList("values", [&](std::size_t, const cls_ReadVisitor* e) {
      if (!e) nex_ThrowCmd(std::string("The stored list ") + kClassName + " holds a null element");
      items_.emplace_back(cls_NewFromReader<T>(*e));
    });
  }
  void DBWrite(const cls_WriteVisitor& w) const {
    if (!w.StartWrite(TypeId(), uid_)) return;
    std::vector<const void*> values;
    values.reserve(items_.size());
    for (const auto& h : items_) values.push_back(static_cast<const cls_Root<T>*>(&h.Get()));
    w.WriteObjectList("values", values, &WriteElement);
  }
  virtual ~mdl_1DArrayList() = default;
  virtual mdl_1DArrayList* Copy() const { return mem_New<mdl_1DArrayList>(*this); }
  static void CowDtor(void* p) { cow_Destroy(static_cast<mdl_1DArrayList*>(p)); }
  static void InitializeMetadata(cls_ClassRegistrar& registrar) {
    static const cls_AttributeSpec kAttrs[] = {{0, "values", cls_AttrObjectList, cls_List1D}};
    cls_RegisterTyped<mdl_1DArrayList>(registrar, kAttrs);
  }
  const cls_Uid& GetUid() const noexcept { return uid_; }

  friend bool operator==(const mdl_1DArrayList& a, const mdl_1DArrayList& b) {
    return a.uid_ == b.uid_ && a.items_ == b.items_;
  }

  // --- typed use ---
  std::size_t Size() const noexcept { return items_.size(); }
  const T* ConstGet(Key i) const { return Has(i) ? &items_[static_cast<std::size_t>(i)].Get() : nullptr; }
  // For modification: separates a shared element and records "Modify".
  T& Get(Key i) {
    if (!Has(i)) RefuseMissing(i);
    T& obj = items_[static_cast<std::size_t>(i)].Get();
    Record("Modify", i);
    return obj;
  }
  void Append(const T& value) { InsertHandle(static_cast<Key>(items_.size()), Handle(value)); }
  // Inserts before position i (0 to Size(); Size() appends).
  void Insert(Key i, const T& value) { InsertHandle(i, Handle(value)); }
  void InsertHandle(Key i, Handle h) {
    if (i < 0 || static_cast<std::size_t>(i) > items_.size())
      nex_ThrowCmd(std::string("An element of ") + Names::kRepositoryName + " can go at positions 0 to " +
                   std::to_string(items_.size()) + ", not " + std::to_string(i));
    items_.insert(items_.begin() + i, std::move(h));
    Record("Insert", i);
  }
  bool Remove(Key i) {
    if (!Has(i)) return false;
    items_.erase(items_.begin() + i);
    Record("Remove", i);
    return true;
  }
  const std::vector<Handle>& Items() const noexcept { return items_; }

  bool Has(Key i) const noexcept { return i >= 0 && static_cast<std::size_t>(i) < items_.size(); }

  // --- mdl_Repository: keys are the positions as decimal text; an insert goes before the
  // position its key names; the rest of the face comes from the typed use ---
  std::vector<cow_String> Keys() const override {
    std::vector<cow_String> keys;
    keys.reserve(items_.size());
    for (std::size_t i = 0; i < items_.size(); ++i) keys.emplace_back(std::to_string(i));
    return keys;
  }
  void ForEachElement(mdl_Repository::ElementVisitor visit, void* context) const override {
    for (std::size_t i = 0; i < items_.size(); ++i) {
      const T& obj = items_[i].Get();
      visit(context, cow_String(std::to_string(i)), static_cast<const cls_Root<T>*>(&obj), cls_ClassOf(obj));
    }
  }
  static std::optional<Key> ParseKey(const cow_String& text) { return mdl_ParseIntegerKey(text.view()); }
  static Key KeyOf(const cow_String& key) {
    auto i = mdl_ParseIntegerKey(key.view());
    if (!i)
      nex_ThrowCmd(std::string("The elements of ") + Names::kRepositoryName + " are addressed by position, not by \"" +
                   key.str() + "\"");
    return *i;
  }
  bool Positional() const override { return true; }

 private:
  using mdl_RepositoryFace<mdl_1DArrayList, T>::WriteElement;
  static void Record(const char* operation, Key i) {
    omu_ChangeHistory::Instance().Record(kClassName, operation, cow_String(std::to_string(i)));
  }
  [[noreturn]] void RefuseMissing(Key i) const {
    nex_ThrowCmd("There is no element " + std::to_string(i) + " in " + Names::kRepositoryName + ", which holds " +
                 std::to_string(items_.size()));
  }
  std::vector<Handle> items_;
  cls_Uid uid_;
};
