#include "kbp/kbpC_HexagonalProfile.h"

#include <cmath>

#include "framework/fw_FieldTable.h"
#include "kbp/kbpC_assert.h"

kbpC_HexagonalProfile::kbpC_HexagonalProfile(const cls_ReadVisitor& reader) : kbpC_BeamProfile(reader) { fw_ReadFields(*this, reader); }
void kbpC_HexagonalProfile::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kbpC_HexagonalProfile* kbpC_HexagonalProfile::Copy() const { return new kbpC_HexagonalProfile(*this); }
bool kbpC_HexagonalProfile::operator==(const kbpC_HexagonalProfile& o) const { return fw_EqualFields(*this, o); }
bool kbpC_HexagonalProfile::SameAs(const kbpC_BeamProfile& o) const { return *this == static_cast<const kbpC_HexagonalProfile&>(o); }
void kbpC_HexagonalProfile::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kbpC_HexagonalProfile>(r); }
void kbpC_HexagonalProfile::CowDtor(void* p) { fw_CowDtor<kbpC_HexagonalProfile>(p); }

void kbpC_HexagonalProfile::AssertValid() const {
  kbpC_Assert(r > 0, kbpC_RadiusNotPositive);
  kbpC_Assert(t > 0, kbpC_ThicknessTNotPositive);
  kbpC_Assert(t < std::sqrt(3.0) / 2 * r, kbpC_ThicknessNotBelowHexagonLimit);
}
