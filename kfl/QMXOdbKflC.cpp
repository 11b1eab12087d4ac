#include "kfl/QMXOdbKflC.h"

#include <iterator>

#include "platform/base/bas_StartCount.h"
#include "platform/base/bas_StartJournal.h"

namespace {
int count = 0;
constexpr std::uint16_t kArchKey = 849;

// Row i names the class whose type id is (849 << 16) | i. The class rows are added with the
// module's classes; until then the table holds its leading empty row only.
constexpr typ_ArchCompRecord kArchRows[] = {
    {0, 0, 0, nullptr},
};
}  // namespace

typ_ArchCompEntry kflC_ArchEntry() {
  return typ_ArchCompEntry(kArchRows, static_cast<int>(std::size(kArchRows)));
}

void kflC_formalize() {}

int QMXOdbKflC_count() { return count; }

void QMXOdbKflC_initialize(int& tally) {
  if (!bas_FirstStart(count, tally)) return;
  bas_StartJournal::Start("QMXOdbKflC");
  typ_ArchCompTable::InsertEntry(kArchKey, kflC_ArchEntry());
}

void QMXOdbKflC_finalize(int& tally) {
  if (!bas_LastStop(count, tally)) return;
  bas_StartJournal::Stop("QMXOdbKflC");
}
