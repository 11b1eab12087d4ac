#include "kop/kopC_TurnControl.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kop/kopC_assert.h"

kopC_TurnControl::kopC_TurnControl(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

void kopC_TurnControl::AssertValid() const {
  // The region is the whole restriction.
}

template class fw_PersistentClass<kopC_TurnControl, kopC_GeometricRestriction>;
