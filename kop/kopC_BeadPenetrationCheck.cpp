#include "kop/kopC_BeadPenetrationCheck.h"

#include "framework/fw_FieldTable.h"
#include "kop/kopC_assert.h"

kopC_BeadPenetrationCheck::kopC_BeadPenetrationCheck(const cls_ReadVisitor& reader) : kopC_GeometricRestriction(reader) { fw_ReadFields(*this, reader); }
void kopC_BeadPenetrationCheck::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kopC_BeadPenetrationCheck* kopC_BeadPenetrationCheck::Copy() const { return new kopC_BeadPenetrationCheck(*this); }
bool kopC_BeadPenetrationCheck::operator==(const kopC_BeadPenetrationCheck& o) const { return fw_EqualFields(*this, o); }
bool kopC_BeadPenetrationCheck::SameAs(const kopC_GeometricRestriction& o) const { return *this == static_cast<const kopC_BeadPenetrationCheck&>(o); }
void kopC_BeadPenetrationCheck::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kopC_BeadPenetrationCheck>(r); }
void kopC_BeadPenetrationCheck::CowDtor(void* p) { fw_CowDtor<kopC_BeadPenetrationCheck>(p); }

void kopC_BeadPenetrationCheck::AssertValid() const {
  // The region is the whole restriction.
}
