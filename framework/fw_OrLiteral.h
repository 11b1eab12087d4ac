#pragma once
// Number members with a sentinel, as scripts see them. The sentinel is the largest value of the
// number's type (1.7976931348623157e308 for a double, 2147483647 for an integer), which is also
// what the file stores; scripts never see it:
// - fw_OrLiteral: a number that may instead hold the one literal of an enumeration (an influence
//   radius that is "WHOLE_SURFACE" or a distance, a number of layers that is "ALL" or a count),
//   read and written as the literal's text;
// - fw_Unspecified: a double that may be left unspecified (a lock's limits, a search radius),
//   read and written as null.
// Their conversions are in fw_Traits.h, used alike by the command layer, the schema and Python.
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

// Converts to and from double both ways, so that a member of this type reads like a double in the
// class's own code (accessors, rules, comparisons with the sentinel).
struct fw_Unspecified {
  static constexpr double kUnspecified = std::numeric_limits<double>::max();

  double value = kUnspecified;

  constexpr fw_Unspecified() = default;
  constexpr fw_Unspecified(double v) : value(v) {}  // NOLINT: a number converts
  constexpr operator double() const { return value; }  // NOLINT
  constexpr bool IsUnspecified() const { return value == kUnspecified; }
};
