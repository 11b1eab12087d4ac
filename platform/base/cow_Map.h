#pragma once
// An ordered copy-on-write map.
#include <cstddef>
#include <functional>
#include <map>

#include "platform/base/cow_Box.h"

template <class K, class V, class Less = std::less<K>>
class cow_Map {
 public:
  using map_type = std::map<K, V, Less>;
  cow_Map() = default;

  std::size_t Size() const noexcept { return Items().size(); }
  bool Contains(const K& k) const { return Items().count(k) != 0; }
  const V* Find(const K& k) const {
    auto it = Items().find(k);
    return it == Items().end() ? nullptr : &it->second;
  }
  V* FindMutable(const K& k) {
    if (!Contains(k)) return nullptr;
    return &Map().find(k)->second;
  }
  void Insert(const K& k, const V& v) { Map().insert_or_assign(k, v); }
  bool Remove(const K& k) {
    if (!Contains(k)) return false;
    Map().erase(k);
    return true;
  }
  const map_type& Items() const noexcept {
    static const map_type kEmpty;
    return box_.IsNull() ? kEmpty : box_.Get();
  }
  auto begin() const noexcept { return Items().begin(); }
  auto end() const noexcept { return Items().end(); }
  bool SharesBodyWith(const cow_Map& o) const noexcept { return !box_.IsNull() && box_.SharesBodyWith(o.box_); }

  friend bool operator==(const cow_Map& a, const cow_Map& b) { return a.Items() == b.Items(); }

 private:
  map_type& Map() {
    if (box_.IsNull()) box_ = cow_Box<map_type>(map_type());
    return box_.Mutable();
  }
  cow_Box<map_type> box_;
};
