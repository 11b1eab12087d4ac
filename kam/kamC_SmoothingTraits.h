#pragma once
// How a smoothing member is written, read and offered to scripts: the generic number-or-literal
// conversion, the literal ("SOLVER_DEFAULT") held as the unspecified double. Included only from
// the .cpp of a class that has one, after the generic field-table code.
#include "framework/fw_Traits.h"
#include "kam/kamC_Smoothing.h"

static_assert(kamC_kUnspecified == std::numeric_limits<double>::max());

template <class E>
struct fw_Traits<kamC_Smoothing<E>> : fw_LiteralNumberTraits<kamC_Smoothing<E>, double, E> {};
