#pragma once
// One row of a class's field table: the member, its persistent name, its field number and its
// scripting name. A persistent class lists its fields once, in write order, in a static
// constexpr function Fields() returning a tuple of these; everything mechanical is derived.
#include <cstdint>
#include <tuple>

template <class C, class M>
struct fw_Field {
  const char* name;        // persistent name
  int number;              // persistent field number
  const char* scriptName;  // scripting name
  M C::*member;
};

template <class C, class M>
fw_Field(const char*, int, const char*, M C::*) -> fw_Field<C, M>;

// Type id of row `row` of the architecture-compatibility table of module key `key`.
constexpr unsigned fw_TypeId(unsigned key, unsigned row) { return (key << 16) | row; }
