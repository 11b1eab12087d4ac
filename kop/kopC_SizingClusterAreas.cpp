#include "kop/kopC_SizingClusterAreas.h"

#include "framework/fw_FieldTable.h"
#include "kop/kopC_assert.h"

kopC_SizingClusterAreas::kopC_SizingClusterAreas(const cls_ReadVisitor& reader) : kopC_GeometricRestriction(reader) { fw_ReadFields(*this, reader); }
void kopC_SizingClusterAreas::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kopC_SizingClusterAreas* kopC_SizingClusterAreas::Copy() const { return new kopC_SizingClusterAreas(*this); }
bool kopC_SizingClusterAreas::operator==(const kopC_SizingClusterAreas& o) const { return fw_EqualFields(*this, o); }
bool kopC_SizingClusterAreas::SameAs(const kopC_GeometricRestriction& o) const { return *this == static_cast<const kopC_SizingClusterAreas&>(o); }
void kopC_SizingClusterAreas::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kopC_SizingClusterAreas>(r); }
void kopC_SizingClusterAreas::CowDtor(void* p) { fw_CowDtor<kopC_SizingClusterAreas>(p); }

void kopC_SizingClusterAreas::AssertValid() const {
  // The region is the whole restriction.
}
