#include "kco/QMXOdbKcoC.h"

#include <iterator>

#include "platform/base/bas_StartCount.h"
#include "platform/base/bas_StartJournal.h"

namespace {
int count = 0;
constexpr std::uint16_t kArchKey = 720;

// Row i names the class whose type id is (720 << 16) | i. The class rows are added with the
// module's classes; until then the table holds its leading empty row only.
constexpr typ_ArchCompRecord kArchRows[] = {
    {0, 0, 0, nullptr},
};
}  // namespace

typ_ArchCompEntry kcoC_ArchEntry() {
  return typ_ArchCompEntry(kArchRows, static_cast<int>(std::size(kArchRows)));
}

void kcoC_formalize() {}

int QMXOdbKcoC_count() { return count; }

void QMXOdbKcoC_initialize(int& tally) {
  if (!bas_FirstStart(count, tally)) return;
  bas_StartJournal::Start("QMXOdbKcoC");
  typ_ArchCompTable::InsertEntry(kArchKey, kcoC_ArchEntry());
}

void QMXOdbKcoC_finalize(int& tally) {
  if (!bas_LastStop(count, tally)) return;
  bas_StartJournal::Stop("QMXOdbKcoC");
}
