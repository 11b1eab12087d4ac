#include "kop/kopC_PenetrationCheck.h"

#include "framework/fw_FieldTable.h"
#include "kop/kopC_assert.h"

kopC_PenetrationCheck::kopC_PenetrationCheck(const cls_ReadVisitor& reader) : kopC_GeometricRestriction(reader) { fw_ReadFields(*this, reader); }
void kopC_PenetrationCheck::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kopC_PenetrationCheck* kopC_PenetrationCheck::Copy() const { return new kopC_PenetrationCheck(*this); }
bool kopC_PenetrationCheck::operator==(const kopC_PenetrationCheck& o) const { return fw_EqualFields(*this, o); }
bool kopC_PenetrationCheck::SameAs(const kopC_GeometricRestriction& o) const { return *this == static_cast<const kopC_PenetrationCheck&>(o); }
void kopC_PenetrationCheck::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kopC_PenetrationCheck>(r); }
void kopC_PenetrationCheck::CowDtor(void* p) { fw_CowDtor<kopC_PenetrationCheck>(p); }

void kopC_PenetrationCheck::AssertValid() const {
  // The region is the whole restriction.
}
