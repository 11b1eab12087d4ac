#pragma once
// An ordered copy-on-write list of values.
#include <algorithm>
#include <cstddef>
#include <initializer_list>
#include <stdexcept>
#include <vector>

#include "platform/base/cow_Box.h"

struct cow_ListFill {};

template <class T>
class cow_List {
 public:
  using value_type = T;
  cow_List() = default;
  cow_List(std::initializer_list<T> items) : box_(std::vector<T>(items)) {}
  explicit cow_List(std::vector<T> items) : box_(std::move(items)) {}
  // Fill construction: n copies of value.
  cow_List(cow_ListFill, std::size_t n, const T& value) : box_(std::vector<T>(n, value)) {}

  std::size_t Length() const noexcept { return box_.IsNull() ? 0 : box_.Get().size(); }
  std::size_t size() const noexcept { return Length(); }
  bool empty() const noexcept { return Length() == 0; }
  // const_reference: a list of bools hands out values, not references.
  typename std::vector<T>::const_reference operator[](std::size_t i) const { return Items()[i]; }
  T& Get(std::size_t i) { return Vec()[i]; }
  const T* GetCArray() const noexcept { return box_.IsNull() ? nullptr : box_.Get().data(); }
  const std::vector<T>& Items() const noexcept {
    static const std::vector<T> kEmpty;
    return box_.IsNull() ? kEmpty : box_.Get();
  }
  auto begin() const noexcept { return Items().begin(); }
  auto end() const noexcept { return Items().end(); }

  void Append(const T& v) { Vec().push_back(v); }
  void Insert(std::size_t i, const T& v) {
    if (i > Length()) throw std::out_of_range("cow_List::Insert: index past the end");
    Vec().insert(Vec().begin() + static_cast<std::ptrdiff_t>(i), v);
  }
  void RemoveFirst() { RemoveIndex(0); }
  void RemoveLast() {
    if (empty()) throw std::out_of_range("cow_List::RemoveLast: empty list");
    Vec().pop_back();
  }
  void RemoveIndex(std::size_t i) {
    if (i >= Length()) throw std::out_of_range("cow_List::RemoveIndex: index out of range");
    Vec().erase(Vec().begin() + static_cast<std::ptrdiff_t>(i));
  }
  void Resize(std::size_t n) { Vec().resize(n); }
  bool SharesBodyWith(const cow_List& o) const noexcept { return !box_.IsNull() && box_.SharesBodyWith(o.box_); }

  friend bool operator==(const cow_List& a, const cow_List& b) { return a.Items() == b.Items(); }
  friend bool operator!=(const cow_List& a, const cow_List& b) { return !(a == b); }

 private:
  std::vector<T>& Vec() {
    if (box_.IsNull()) box_ = cow_Box<std::vector<T>>(std::vector<T>());
    return box_.Mutable();
  }
  cow_Box<std::vector<T>> box_;
};
