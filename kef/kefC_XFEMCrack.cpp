#include "kef/kefC_XFEMCrack.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kef/kefC_assert.h"

kefC_XFEMCrack::kefC_XFEMCrack(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

void kefC_XFEMCrack::AssertValid() const {
  if (suppress) return;  // a suppressed feature is not validated
  kefC_Assert(singularityCalcRadius > 0, kefC_SingularityRadiusNotPositive);
  kefC_Assert(nodeId.size() == elemId.size(), kefC_NodeIdLength);
  kefC_Assert(hasCrackFront.size() == elemId.size(), kefC_HasCrackFrontLength);
  kefC_Assert(crackPlaneDist.size() == elemId.size(), kefC_CrackPlaneDistLength);
  kefC_Assert(crackFrontDist.size() == elemId.size(), kefC_CrackFrontDistLength);
  kefC_Assert(allowCrackGrowth || !crackLocation.IsEmpty(), kefC_CrackLocationMissing);
}

template class fw_PersistentClass<kefC_XFEMCrack, kefC_Crack>;
