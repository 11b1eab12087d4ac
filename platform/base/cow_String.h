#pragma once
// The framework's reference-counted immutable string: copies share one body.
#include <atomic>
#include <compare>
#include <cstddef>
#include <iosfwd>
#include <string>
#include <string_view>

class cow_String {
 public:
  cow_String() noexcept = default;
  cow_String(const char* s);  // NOLINT: implicit by design, like the framework's
  cow_String(std::string_view s);
  cow_String(const std::string& s) : cow_String(std::string_view(s)) {}
  // Copies, reads and releases are inline: strings are copied and compared by the million as
  // files load and repositories sort.
  cow_String(const cow_String& o) noexcept : body_(o.body_) {
    if (body_) body_->refs.fetch_add(1, std::memory_order_relaxed);
  }
  cow_String(cow_String&& o) noexcept : body_(o.body_) { o.body_ = nullptr; }
  cow_String& operator=(const cow_String& o) noexcept {
    // The same body again (a key or literal a reused record already holds): no count changes.
    if (body_ == o.body_) return *this;
    cow_String tmp(o);
    std::swap(body_, tmp.body_);
    return *this;
  }
  cow_String& operator=(cow_String&& o) noexcept {
    std::swap(body_, o.body_);
    return *this;
  }
  ~cow_String() {
    if (body_ && body_->refs.fetch_sub(1, std::memory_order_acq_rel) == 1) Free(body_);
  }

  const char* c_str() const noexcept { return body_ ? body_->Data() : ""; }
  std::size_t size() const noexcept { return body_ ? body_->size : 0; }
  bool empty() const noexcept { return size() == 0; }
  std::string_view view() const noexcept { return {c_str(), size()}; }
  std::string str() const { return std::string(view()); }
  operator std::string_view() const noexcept { return view(); }
  // Number of handles sharing this body (0 for the empty string).
  int UseCount() const noexcept;

  friend bool operator==(const cow_String& a, const cow_String& b) noexcept {
    return a.body_ == b.body_ || a.view() == b.view();
  }
  friend std::strong_ordering operator<=>(const cow_String& a, const cow_String& b) noexcept {
    return a.view().compare(b.view()) <=> 0;
  }
  friend bool operator==(const cow_String& a, const char* b) noexcept { return a.view() == b; }

 private:
  // The characters follow the header, NUL-terminated.
  struct Body {
    std::atomic<int> refs;
    std::size_t size;
    char* Data() noexcept { return reinterpret_cast<char*>(this + 1); }
  };
  static void Free(Body* body) noexcept;
  Body* body_ = nullptr;
};

// Natural order, as repositories sort their keys: runs of digits compare by their numeric value
// ("Part-2" before "Part-10"); ties fall back to plain byte order so the order stays total.
int cow_NaturalCompare(std::string_view a, std::string_view b) noexcept;

struct cow_NaturalLess {
  bool operator()(const cow_String& a, const cow_String& b) const noexcept {
    return cow_NaturalCompare(a.view(), b.view()) < 0;
  }
};

std::ostream& operator<<(std::ostream& os, const cow_String& s);

template <>
struct std::hash<cow_String> {
  std::size_t operator()(const cow_String& s) const noexcept {
    return std::hash<std::string_view>()(s.view());
  }
};
