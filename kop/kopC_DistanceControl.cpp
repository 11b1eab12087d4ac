#include "kop/kopC_DistanceControl.h"

#include "framework/fw_FieldTable.h"
#include "kop/kopC_assert.h"

kopC_DistanceControl::kopC_DistanceControl(const cls_ReadVisitor& reader) : kopC_GeometricRestriction(reader) { fw_ReadFields(*this, reader); }
void kopC_DistanceControl::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kopC_DistanceControl* kopC_DistanceControl::Copy() const { return new kopC_DistanceControl(*this); }
bool kopC_DistanceControl::operator==(const kopC_DistanceControl& o) const { return fw_EqualFields(*this, o); }
bool kopC_DistanceControl::SameAs(const kopC_GeometricRestriction& o) const { return *this == static_cast<const kopC_DistanceControl&>(o); }
void kopC_DistanceControl::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kopC_DistanceControl>(r); }
void kopC_DistanceControl::CowDtor(void* p) { fw_CowDtor<kopC_DistanceControl>(p); }

void kopC_DistanceControl::AssertValid() const {
  kopC_Assert(distance >= 0, kopC_DistanceNegative);
}
