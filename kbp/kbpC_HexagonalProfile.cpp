#include "kbp/kbpC_HexagonalProfile.h"

#include <cmath>

#include "framework/fw_PersistentClassImpl.h"
#include "kbp/kbpC_assert.h"

kbpC_HexagonalProfile::kbpC_HexagonalProfile(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

void kbpC_HexagonalProfile::AssertValid() const {
  kbpC_Assert(r > 0, kbpC_RadiusNotPositive);
  kbpC_Assert(t > 0, kbpC_ThicknessTNotPositive);
  kbpC_Assert(t < std::sqrt(3.0) / 2 * r, kbpC_ThicknessNotBelowHexagonLimit);
}

template class fw_PersistentClass<kbpC_HexagonalProfile, kbpC_BeamProfile>;
