#include "kop/kopC_StampControl.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kop/kopC_assert.h"

kopC_StampControl::kopC_StampControl(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

void kopC_StampControl::AssertValid() const {
  kopC_Assert(draftAngle >= 0 && draftAngle <= 20, kopC_DraftAngleOutOfRange);
}

template class fw_PersistentClass<kopC_StampControl, kopC_GeometricRestriction>;
