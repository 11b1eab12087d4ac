#include "kop/kopC_DemoldControl.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kop/kopC_assert.h"

kopC_DemoldControl::kopC_DemoldControl(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

void kopC_DemoldControl::AssertValid() const {
  kopC_Assert(draftAngle >= 0 && draftAngle <= 20, kopC_DraftAngleOutOfRange);
  kopC_Assert(technique != TechniqueEnm::STAMP || draftAngle == 0, kopC_DraftAngleWithStamping);
}

template class fw_PersistentClass<kopC_DemoldControl, kopC_GeometricRestriction>;
