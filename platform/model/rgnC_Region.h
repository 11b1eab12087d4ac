#pragma once
// A reference to a region of the model (a set or a surface) by name; empty by default.
#include "platform/base/cow_String.h"

class rgnC_Region {
 public:
  rgnC_Region() = default;
  explicit rgnC_Region(cow_String name) : name_(std::move(name)) {}
  const cow_String& Name() const noexcept { return name_; }
  bool IsEmpty() const noexcept { return name_.empty(); }
  friend bool operator==(const rgnC_Region& a, const rgnC_Region& b) { return a.name_ == b.name_; }

 private:
  cow_String name_;
};
