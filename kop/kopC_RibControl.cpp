#include "kop/kopC_RibControl.h"

#include "framework/fw_FieldTable.h"
#include "kop/kopC_assert.h"

kopC_RibControl::kopC_RibControl(const cls_ReadVisitor& reader) : kopC_GeometricRestriction(reader) { fw_ReadFields(*this, reader); }
void kopC_RibControl::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kopC_RibControl* kopC_RibControl::Copy() const { return new kopC_RibControl(*this); }
bool kopC_RibControl::operator==(const kopC_RibControl& o) const { return fw_EqualFields(*this, o); }
bool kopC_RibControl::SameAs(const kopC_GeometricRestriction& o) const { return *this == static_cast<const kopC_RibControl&>(o); }
void kopC_RibControl::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kopC_RibControl>(r); }
void kopC_RibControl::CowDtor(void* p) { fw_CowDtor<kopC_RibControl>(p); }

void kopC_RibControl::AssertValid() const {
  kopC_Assert(ribThickness > 0, kopC_RibThicknessNotPositive);
  kopC_Assert(ribDistance > 0, kopC_RibDistanceNotPositive);
}
