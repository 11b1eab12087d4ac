#pragma once
// A list member of an option that holds options of one class (the test data of a Mullins effect,
// the damage evolutions of a damage initiation). Like a slot it is typed by the class's row in the
// architecture table: an element of another class is refused and the list keeps what it held.
#include <string>

#include "kma/kmaC_MaterialOptionList.h"

// Refuses a list element of another class than the list's (nex_CmdException); `given` is 0 for an
// empty element.
[[noreturn]] void kmaC_RefuseListElement(const char* member, kmaC_OptionClass expected, std::size_t index,
                                         unsigned given);

template <kmaC_OptionClass Class>
class kmaC_OptionListMember {
 public:
  static constexpr kmaC_OptionClass kClass = Class;
  static constexpr const char* kClassName = kmaC_OptionClassName(Class);
  static constexpr unsigned TypeId() { return kmaC_OptionTypeId(Class); }

  kmaC_OptionListMember() = default;

  const kmaC_MaterialOptionList& List() const noexcept { return list_; }
  // The list itself, for the list shortcuts; the owner's validation checks what is put in it.
  kmaC_MaterialOptionList& List() noexcept { return list_; }
  std::size_t size() const noexcept { return list_.size(); }
  bool empty() const noexcept { return list_.empty(); }

  // Takes the elements, all or none: one of another class (or an empty one) refuses the list.
  void Set(const kmaC_MaterialOptionList& list, const char* member) {
    for (std::size_t i = 0; i < list.size(); ++i) {
      const kmaC_OptionHandle& h = list[i];
      if (h.IsNull()) kmaC_RefuseListElement(member, Class, i, 0);
      if (!h->IsA(TypeId())) kmaC_RefuseListElement(member, Class, i, h->DynTypeId());
    }
    list_ = list;
  }
  // True when every element is of the list's class.
  bool ElementsFit() const {
    for (const kmaC_OptionHandle& h : list_)
      if (h.IsNull() || !h->IsA(TypeId())) return false;
    return true;
  }

  friend bool operator==(const kmaC_OptionListMember& a, const kmaC_OptionListMember& b) { return a.list_ == b.list_; }

 private:
  kmaC_MaterialOptionList list_;
};
