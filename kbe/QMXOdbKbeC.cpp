#include "kbe/QMXOdbKbeC.h"

#include <iterator>

#include "platform/base/bas_StartCount.h"
#include "platform/base/bas_StartJournal.h"

namespace {
int count = 0;
constexpr std::uint16_t kArchKey = 680;

// Row i names the class whose type id is (680 << 16) | i. The class rows are added with the
// module's classes; until then the table holds its leading empty row only.
constexpr typ_ArchCompRecord kArchRows[] = {
    {0, 0, 0, nullptr},
};
}  // namespace

typ_ArchCompEntry kbeC_ArchEntry() {
  return typ_ArchCompEntry(kArchRows, static_cast<int>(std::size(kArchRows)));
}

void kbeC_formalize() {}

int QMXOdbKbeC_count() { return count; }

void QMXOdbKbeC_initialize(int& tally) {
  if (!bas_FirstStart(count, tally)) return;
  bas_StartJournal::Start("QMXOdbKbeC");
  typ_ArchCompTable::InsertEntry(kArchKey, kbeC_ArchEntry());
}

void QMXOdbKbeC_finalize(int& tally) {
  if (!bas_LastStop(count, tally)) return;
  bas_StartJournal::Stop("QMXOdbKbeC");
}
