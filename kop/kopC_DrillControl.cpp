#include "kop/kopC_DrillControl.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kop/kopC_assert.h"

kopC_DrillControl::kopC_DrillControl(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

void kopC_DrillControl::AssertValid() const {
  // the point technique needs its point
  kopC_Assert(technique != TechniqueEnm::POINT || !pointRegion.Name().empty(), kopC_PointTechniqueVertex);
}

template class fw_PersistentClass<kopC_DrillControl, kopC_GeometricRestriction>;
