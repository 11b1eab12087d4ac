#include "kop/QMXOdbKopC.h"

#include <iterator>

#include "platform/base/bas_StartCount.h"
#include "platform/base/bas_StartJournal.h"

namespace {
int count = 0;
constexpr std::uint16_t kArchKey = 932;

// Row i names the class whose type id is (932 << 16) | i. The class rows are added with the
// module's classes; until then the table holds its leading empty row only.
constexpr typ_ArchCompRecord kArchRows[] = {
    {0, 0, 0, nullptr},
};
}  // namespace

typ_ArchCompEntry kopC_ArchEntry() {
  return typ_ArchCompEntry(kArchRows, static_cast<int>(std::size(kArchRows)));
}

void kopC_formalize() {}

int QMXOdbKopC_count() { return count; }

void QMXOdbKopC_initialize(int& tally) {
  if (!bas_FirstStart(count, tally)) return;
  bas_StartJournal::Start("QMXOdbKopC");
  typ_ArchCompTable::InsertEntry(kArchKey, kopC_ArchEntry());
}

void QMXOdbKopC_finalize(int& tally) {
  if (!bas_LastStop(count, tally)) return;
  bas_StartJournal::Stop("QMXOdbKopC");
}
