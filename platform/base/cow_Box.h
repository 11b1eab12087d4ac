#pragma once
// A copy-on-write box around a value: copies share one counted body; Mutable() separates a
// private copy first when the body is shared. The building block of the cow_ containers.
#include <atomic>
#include <utility>

#include "platform/base/bas_Alloc.h"

template <class V>
class cow_Box {
 public:
  cow_Box() = default;
  explicit cow_Box(V value) : body_(mem_New<Body>(std::move(value))) {}
  cow_Box(const cow_Box& o) noexcept : body_(o.body_) { Retain(); }
  cow_Box(cow_Box&& o) noexcept : body_(std::exchange(o.body_, nullptr)) {}
  cow_Box& operator=(const cow_Box& o) noexcept {
    cow_Box tmp(o);
    std::swap(body_, tmp.body_);
    return *this;
  }
  cow_Box& operator=(cow_Box&& o) noexcept {
    std::swap(body_, o.body_);
    return *this;
  }
  ~cow_Box() { Release(); }

  bool IsNull() const noexcept { return body_ == nullptr; }
  // Only for a non-null box.
  const V& Get() const noexcept { return body_->value; }
  V& Mutable() {
    if (body_->refs.load(std::memory_order_acquire) != 1) {
      Body* own = mem_New<Body>(body_->value);
      Release();
      body_ = own;
    }
    return body_->value;
  }
  int UseCount() const noexcept { return body_ ? body_->refs.load(std::memory_order_relaxed) : 0; }
  bool SharesBodyWith(const cow_Box& o) const noexcept { return body_ == o.body_; }

 private:
  struct Body {
    explicit Body(V v) : value(std::move(v)) {}
    Body(const Body&) = delete;
    std::atomic<int> refs{1};
    V value;
  };
  void Retain() noexcept {
    if (body_) body_->refs.fetch_add(1, std::memory_order_relaxed);
  }
  void Release() noexcept {
    if (body_ && body_->refs.fetch_sub(1, std::memory_order_acq_rel) == 1) mem_Delete(body_);
    body_ = nullptr;
  }
  Body* body_ = nullptr;
};
