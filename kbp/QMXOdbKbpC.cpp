#include "kbp/QMXOdbKbpC.h"

#include <iterator>

namespace {
int count = 0;
constexpr std::uint16_t kArchKey = 612;

// Row i names the class whose type id is (612 << 16) | i.
constexpr typ_ArchCompRecord kArchRows[] = {
    {0, 0, 0, nullptr},
    {7, 1, 0, "kbpC_BeamProfile"},
    {7, 1, 0, "kbpC_RectangularProfile"},
    {7, 1, 0, "kbpC_BoxProfile"},
    {7, 1, 0, "kbpC_CircularProfile"},
    {7, 1, 0, "kbpC_PipeProfile"},
    {7, 1, 0, "kbpC_HexagonalProfile"},
    {7, 1, 0, "kbpC_TrapezoidalProfile"},
    {7, 1, 0, "kbpC_IbeamProfile"},
    {7, 1, 0, "kbpC_LbeamProfile"},
    {7, 1, 0, "kbpC_TbeamProfile"},
    {7, 1, 0, "kbpC_CbeamProfile"},
    {7, 1, 0, "kbpC_HatProfile"},
    {7, 1, 0, "kbpC_ArbitraryProfile"},
    {7, 1, 0, "kbpC_GeneralizedProfile"},
    {7, 1, 10, "kbpC_BeamProfileContainer"},
    {7, 1, 0, "kbpC_BeamProfileIMPSC"},
    {7, 1, 0, "kbpC_BeamProfileShortcut"},
    {7, 16, 612, "kbpC_BeamProfileInBeamProfileContainerShortcut"},
    {7, 1, 0, "kbpC_BeamProfileContainerIMPLSC"},
    {7, 1, 0, "kbpC_BeamProfileContainerShortcut"},
    {7, 19, 612, "kbpC_BeamProfileContainerInModelShortcut"},
    {7, 13, 10, "kbpC_BPCWrapper"},
};
static_assert(std::size(kArchRows) == 23);
}  // namespace

typ_ArchCompEntry kbpC_ArchEntry() {
  return typ_ArchCompEntry(kArchRows, static_cast<int>(std::size(kArchRows)));
}

void kbpC_formalize() {}

int QMXOdbKbpC_count() { return count; }

void QMXOdbKbpC_initialize(int& tally) {
  if (count++ != 0) return;
  ++tally;
  typ_ArchCompTable::InsertEntry(kArchKey, kbpC_ArchEntry());
}

void QMXOdbKbpC_finalize(int& tally) {
  if (count-- != 1) return;
  --tally;
}
