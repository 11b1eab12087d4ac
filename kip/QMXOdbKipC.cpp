#include "kip/QMXOdbKipC.h"

#include <iterator>

#include "platform/base/bas_StartCount.h"
#include "platform/base/bas_StartJournal.h"

namespace {
int count = 0;
constexpr std::uint16_t kArchKey = 863;

// The module has no classes: its table is the empty row alone.
constexpr typ_ArchCompRecord kArchRows[] = {
    {0, 0, 0, nullptr},
};
}  // namespace

typ_ArchCompEntry kipC_ArchEntry() {
  return typ_ArchCompEntry(kArchRows, static_cast<int>(std::size(kArchRows)));
}

void kipC_formalize() {}

int QMXOdbKipC_count() { return count; }

void QMXOdbKipC_initialize(int& tally) {
  if (!bas_FirstStart(count, tally)) return;
  bas_StartJournal::Start("QMXOdbKipC");
  typ_ArchCompTable::InsertEntry(kArchKey, kipC_ArchEntry());
}

void QMXOdbKipC_finalize(int& tally) {
  if (!bas_LastStop(count, tally)) return;
  bas_StartJournal::Stop("QMXOdbKipC");
}
