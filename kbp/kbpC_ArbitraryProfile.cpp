#include "kbp/kbpC_ArbitraryProfile.h"

#include <cstddef>

#include "framework/fw_PersistentClassImpl.h"
#include "kbp/kbpC_assert.h"

kbpC_ArbitraryProfile::kbpC_ArbitraryProfile(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

// Rule 11 already refuses a zero thickness, so rule 12 cannot fail after it; the order of the
// rules is fixed, so it stays.
void kbpC_ArbitraryProfile::AssertValid() const {
  const bool hasThickness = table.Columns() == 3;
  const std::size_t points = table.Rows();
  const std::size_t segments = hasThickness && points > 0 ? points - 1 : 0;
  for (std::size_t i = 1; i <= segments; ++i) kbpC_Assert(table(i, 2) > 0, kbpC_ThicknessesNotPositive);
  for (std::size_t i = 2; i <= segments; ++i)
    kbpC_Assert(table(i - 1, 2) != 0 || table(i, 2) != 0, kbpC_ConnectedSegmentsWithoutThickness);
  kbpC_Assert(points == segments + 1, kbpC_PointsNotSegmentsPlusOne);
}

template class fw_PersistentClass<kbpC_ArbitraryProfile, kbpC_BeamProfile>;
