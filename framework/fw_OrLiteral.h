#pragma once
// A number member that may instead hold the one literal of an enumeration: an influence radius
// that is "WHOLE_SURFACE" or a distance, a number of layers that is "ALL" or a count. The literal
// is kept as the largest value of the number's type (the system's sentinel: 1.7976931348623157e308
// for a double, 2147483647 for an integer), which is also what the file stores; scripts see the
// literal's text.
#include <limits>

template <class N, class E>
struct fw_OrLiteral {
  using Number = N;
  using Literal = E;
  static constexpr N kLiteral = std::numeric_limits<N>::max();

  N value = kLiteral;

  constexpr fw_OrLiteral() = default;
  constexpr fw_OrLiteral(N v) : value(v) {}  // NOLINT: a number converts
  constexpr fw_OrLiteral(E) : value(kLiteral) {}  // NOLINT: the literal converts
  constexpr bool IsLiteral() const { return value == kLiteral; }
  friend constexpr bool operator==(const fw_OrLiteral& a, const fw_OrLiteral& b) { return a.value == b.value; }
};
