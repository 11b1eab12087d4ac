#include "kfl/kflC_Descriptions.h"

// What the classes of the module and their members mean, by scripting name.
namespace {
constexpr cls_MemberDescription kKflDescButterworthFilter[] = {
    {"cutoffFrequency",
     "Frequency above which the filter attenuates the history (cycles per time, above 0; to be "
     "given)"},
    {"order", "Order of the filter: the higher, the steeper the roll-off (1 to 20)"},
    {"operation",
     "What is taken of the filtered output: nothing (NONE), its minimum, maximum or "
     "absolute value"},
    {"limit", "The value the output is compared with (the largest double: no limit)"},
    {"halt", "Whether the analysis stops when the output reaches the limit (needs a limit)"},
};
constexpr cls_MemberDescription kKflDescChebyshev1Filter[] = {
    {"cutoffFrequency",
     "Frequency above which the filter attenuates the history (cycles per time, above 0; to be "
     "given)"},
    {"order", "Order of the filter: the higher, the steeper the roll-off (1 to 10)"},
    {"rippleFactor", "Size of the ripple in the pass band (above 0, below 1)"},
    {"operation",
     "What is taken of the filtered output: nothing (NONE), its minimum, maximum or "
     "absolute value"},
    {"limit", "The value the output is compared with (the largest double: no limit)"},
    {"halt", "Whether the analysis stops when the output reaches the limit (needs a limit)"},
};
constexpr cls_MemberDescription kKflDescChebyshev2Filter[] = {
    {"cutoffFrequency",
     "Frequency above which the filter attenuates the history (cycles per time, above 0; to be "
     "given)"},
    {"order", "Order of the filter: the higher, the steeper the roll-off (1 to 10)"},
    {"rippleFactor", "Size of the ripple in the stop band (above 0, below 1)"},
    {"operation",
     "What is taken of the filtered output: nothing (NONE), its minimum, maximum or "
     "absolute value"},
    {"limit", "The value the output is compared with (the largest double: no limit)"},
    {"halt", "Whether the analysis stops when the output reaches the limit (needs a limit)"},
};
constexpr cls_MemberDescription kKflDescOperatorFilter[] = {
    {"operation",
     "What is taken of the output: its minimum, maximum or absolute value (NONE is "
     "refused)"},
    {"limit", "The value the output is compared with (the largest double: no limit)"},
    {"halt", "Whether the analysis stops when the output reaches the limit (needs a limit)"},
};
constexpr cls_ClassDescription kKflDescriptions[] = {
    {"kflC_ButterworthFilter",
     "A Butterworth filter: maximally flat in the pass band, of order 1 to 20.",
     kKflDescButterworthFilter},
    {"kflC_Chebyshev1Filter",
     "A Chebyshev type I filter: a steeper roll-off than a Butterworth filter of the same order, "
     "bought with a ripple in the pass band whose size the ripple factor sets.",
     kKflDescChebyshev1Filter},
    {"kflC_Chebyshev2Filter",
     "A Chebyshev type II filter: a flat pass band and a ripple in the stop band whose size the "
     "ripple factor sets.",
     kKflDescChebyshev2Filter},
    {"kflC_OperatorFilter",
     "An operator filter: no smoothing, only an operation on the output (its minimum, maximum or "
     "absolute value), compared with the limit when one is given.",
     kKflDescOperatorFilter},
};
}  // namespace

std::span<const cls_ClassDescription> kflC_DescriptionsTable() { return kKflDescriptions; }

void kflC_RegisterDescriptions() {
  cls_RegisterDescriptions("kfl", kflC_DescriptionsTable());
}
void kflC_UnregisterDescriptions() { cls_UnregisterDescriptions("kfl"); }
