#pragma once
// Member kinds of the connector behaviors that the generic field kinds do not cover:
// - an enumeration stored under other literals than the ones scripts use (the damage potential
//   operators are stored as "INITIATION_SUM", friction's choices as "NUMBER", "DERIV_COMP",
//   "NO_INDEP_COMPS"): scripts see the enumeration's own literals, the record the stored ones,
//   matched by position in the two tables;
// - a component number that may be "ALL", held as 2147483647.
#include <cstdint>
#include <limits>

#include "platform/base/omu_PrimEnum.h"

// S is an enumeration of the stored literals, with the values of E's literals in the same order.
template <class E, class S>
struct kbeC_StoredEnum {
  E value{};
  constexpr kbeC_StoredEnum() = default;
  constexpr kbeC_StoredEnum(E v) : value(v) {}  // NOLINT: the enumeration converts
  constexpr operator E() const { return value; }  // NOLINT
};

// The "ALL" choice of a component member; E is the enumeration that offers the literal "ALL".
inline constexpr std::int32_t kbeC_kAll = std::numeric_limits<std::int32_t>::max();

template <class E>
struct kbeC_ComponentOrAll {
  std::int32_t value = kbeC_kAll;
  constexpr kbeC_ComponentOrAll() = default;
  constexpr kbeC_ComponentOrAll(std::int32_t v) : value(v) {}  // NOLINT: a number converts
  constexpr operator std::int32_t() const { return value; }  // NOLINT
  constexpr bool IsAll() const { return value == kbeC_kAll; }
};

// "Unspecified" limits and forces: the largest finite double.
inline constexpr double kbeC_kUnspecified = std::numeric_limits<double>::max();
