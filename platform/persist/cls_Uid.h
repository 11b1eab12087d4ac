#pragma once
// The identity of a persistent object: 128 random bits, fresh from the default constructor.
#include <compare>
#include <cstdint>
#include <string>
#include <string_view>

class cls_Uid {
 public:
  cls_Uid();  // fresh
  constexpr cls_Uid(std::uint64_t hi, std::uint64_t lo) noexcept : hi_(hi), lo_(lo) {}
  static constexpr cls_Uid Null() noexcept { return cls_Uid(0, 0); }

  std::uint64_t High() const noexcept { return hi_; }
  std::uint64_t Low() const noexcept { return lo_; }
  bool IsNull() const noexcept { return hi_ == 0 && lo_ == 0; }
  // 32 lower-case hexadecimal digits.
  std::string ToString() const;
  // Refuses anything but 32 hexadecimal digits with a command-layer exception.
  static cls_Uid FromString(std::string_view text);

  friend auto operator<=>(const cls_Uid&, const cls_Uid&) = default;

 private:
  std::uint64_t hi_;
  std::uint64_t lo_;
};
