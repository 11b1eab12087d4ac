#pragma once
// Copy-on-write handles to objects: cow_CountedHld (shared ownership), cow_COW (one object,
// separated on first non-const access) and cow_ArrayCOW (an array of objects). The policy says
// how a private copy is made: cow_Virtual<T> through the class's virtual Copy() (polymorphic
// classes), cow_Direct<T> by copy construction. Objects handed to a handle must come from mem_New.
#include <atomic>
#include <cstddef>
#include <type_traits>
#include <utility>
#include <vector>

#include "platform/base/bas_Alloc.h"

template <class T>
struct cow_Direct {
  static T* Clone(const T& t) { return mem_New<T>(t); }
};

template <class T>
struct cow_Virtual {
  static T* Clone(const T& t) { return static_cast<T*>(t.Copy()); }
};

// Releases an object made by mem_New, through its most derived type when it is polymorphic.
template <class T>
void cow_Destroy(T* p) noexcept {
  if (!p) return;
  if constexpr (std::is_polymorphic_v<T>) {
    void* whole = dynamic_cast<void*>(p);
    p->~T();
    mem_Free(whole);
  } else {
    mem_Delete(p);
  }
}

namespace cow_detail {
template <class T>
struct Counted {
  std::atomic<int> refs{1};
  T* obj = nullptr;
};
}  // namespace cow_detail

template <class T>
class cow_CountedHld {
 public:
  cow_CountedHld() = default;
  explicit cow_CountedHld(T* owned) : body_(owned ? mem_New<cow_detail::Counted<T>>() : nullptr) {
    if (body_) body_->obj = owned;
  }
  cow_CountedHld(const cow_CountedHld& o) noexcept : body_(o.body_) { Retain(); }
  cow_CountedHld(cow_CountedHld&& o) noexcept : body_(std::exchange(o.body_, nullptr)) {}
  cow_CountedHld& operator=(cow_CountedHld o) noexcept {
    std::swap(body_, o.body_);
    return *this;
  }
  ~cow_CountedHld() { Release(); }

  bool IsNull() const noexcept { return body_ == nullptr; }
  T& Get() const noexcept { return *body_->obj; }
  T* operator->() const noexcept { return body_->obj; }
  int UseCount() const noexcept { return body_ ? body_->refs.load(std::memory_order_relaxed) : 0; }

 protected:
  void Retain() noexcept {
    if (body_) body_->refs.fetch_add(1, std::memory_order_relaxed);
  }
  void Release() noexcept {
    if (body_ && body_->refs.fetch_sub(1, std::memory_order_acq_rel) == 1) {
      cow_Destroy(body_->obj);
      mem_Delete(body_);
    }
    body_ = nullptr;
  }
  cow_detail::Counted<T>* body_ = nullptr;
};

template <class T, class Policy = cow_Direct<T>>
class cow_COW {
 public:
  using element_type = T;
  using policy_type = Policy;

  cow_COW() = default;  // null
  explicit cow_COW(T* owned) : hld_(owned) {}
  cow_COW(const T& value) : hld_(Policy::Clone(value)) {}  // NOLINT: a value converts

  bool IsNull() const noexcept { return hld_.IsNull(); }
  explicit operator bool() const noexcept { return !IsNull(); }
  const T& Get() const noexcept { return hld_.Get(); }
  const T& ConstGet() const noexcept { return hld_.Get(); }
  // Separates a private copy first when the body is shared.
  T& Get() {
    if (hld_.UseCount() > 1) hld_ = cow_CountedHld<T>(Policy::Clone(hld_.Get()));
    return hld_.Get();
  }
  const T* operator->() const noexcept { return &hld_.Get(); }
  int UseCount() const noexcept { return hld_.UseCount(); }
  bool SharesBodyWith(const cow_COW& o) const noexcept { return !IsNull() && &hld_.Get() == &o.hld_.Get(); }

  friend bool operator==(const cow_COW& a, const cow_COW& b) {
    if (a.IsNull() || b.IsNull()) return a.IsNull() == b.IsNull();
    return &a.Get() == &b.Get() || a.Get() == b.Get();
  }

 private:
  cow_CountedHld<T> hld_;
};

// An array of objects that copies share until one of them is modified.
template <class T, class Policy = cow_Direct<T>>
class cow_ArrayCOW {
 public:
  cow_ArrayCOW() = default;
  std::size_t Size() const noexcept { return items_.size(); }
  const T& operator[](std::size_t i) const noexcept { return items_[i].Get(); }
  T& Get(std::size_t i) { return items_[i].Get(); }
  void Append(const T& value) { items_.emplace_back(value); }
  void Append(T* owned) { items_.emplace_back(owned); }
  void RemoveIndex(std::size_t i) { items_.erase(items_.begin() + static_cast<std::ptrdiff_t>(i)); }
  const cow_COW<T, Policy>& Handle(std::size_t i) const noexcept { return items_[i]; }
  friend bool operator==(const cow_ArrayCOW& a, const cow_ArrayCOW& b) { return a.items_ == b.items_; }

 private:
  std::vector<cow_COW<T, Policy>> items_;
};
