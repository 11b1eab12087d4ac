#include "kam/QMXOdbKamC.h"

#include <iterator>

#include "platform/base/bas_StartCount.h"
#include "platform/base/bas_StartJournal.h"

namespace {
int count = 0;
constexpr std::uint16_t kArchKey = 580;

// Row i names the class whose type id is (580 << 16) | i. The class rows are added with the
// module's classes; until then the table holds its leading empty row only.
constexpr typ_ArchCompRecord kArchRows[] = {
    {0, 0, 0, nullptr},
};
}  // namespace

typ_ArchCompEntry kamC_ArchEntry() {
  return typ_ArchCompEntry(kArchRows, static_cast<int>(std::size(kArchRows)));
}

void kamC_formalize() {}

int QMXOdbKamC_count() { return count; }

void QMXOdbKamC_initialize(int& tally) {
  if (!bas_FirstStart(count, tally)) return;
  bas_StartJournal::Start("QMXOdbKamC");
  typ_ArchCompTable::InsertEntry(kArchKey, kamC_ArchEntry());
}

void QMXOdbKamC_finalize(int& tally) {
  if (!bas_LastStop(count, tally)) return;
  bas_StartJournal::Stop("QMXOdbKamC");
}
