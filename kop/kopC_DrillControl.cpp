#include "kop/kopC_DrillControl.h"

#include "framework/fw_FieldTable.h"
#include "kop/kopC_assert.h"

kopC_DrillControl::kopC_DrillControl(const cls_ReadVisitor& reader) : kopC_GeometricRestriction(reader) { fw_ReadFields(*this, reader); }
void kopC_DrillControl::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kopC_DrillControl* kopC_DrillControl::Copy() const { return new kopC_DrillControl(*this); }
bool kopC_DrillControl::operator==(const kopC_DrillControl& o) const { return fw_EqualFields(*this, o); }
bool kopC_DrillControl::SameAs(const kopC_GeometricRestriction& o) const { return *this == static_cast<const kopC_DrillControl&>(o); }
void kopC_DrillControl::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kopC_DrillControl>(r); }
void kopC_DrillControl::CowDtor(void* p) { fw_CowDtor<kopC_DrillControl>(p); }

void kopC_DrillControl::AssertValid() const {
  // the point technique needs its point
  kopC_Assert(technique != TechniqueEnm::POINT || !pointRegion.Name().empty(), kopC_PointTechniqueVertex);
}
