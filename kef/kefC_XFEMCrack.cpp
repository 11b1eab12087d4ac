#include "kef/kefC_XFEMCrack.h"

#include "framework/fw_FieldTable.h"
#include "kef/kefC_assert.h"

kefC_XFEMCrack::kefC_XFEMCrack(const cls_ReadVisitor& reader) : kefC_Crack(reader) { fw_ReadFields(*this, reader); }
void kefC_XFEMCrack::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kefC_XFEMCrack* kefC_XFEMCrack::Copy() const { return new kefC_XFEMCrack(*this); }
bool kefC_XFEMCrack::operator==(const kefC_XFEMCrack& o) const { return fw_EqualFields(*this, o); }
bool kefC_XFEMCrack::SameAs(const kefC_Crack& o) const { return *this == static_cast<const kefC_XFEMCrack&>(o); }
void kefC_XFEMCrack::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kefC_XFEMCrack>(r); }
void kefC_XFEMCrack::CowDtor(void* p) { fw_CowDtor<kefC_XFEMCrack>(p); }

void kefC_XFEMCrack::AssertValid() const {
  if (suppress) return;  // a suppressed feature is not validated
  kefC_Assert(singularityCalcRadius > 0, kefC_SingularityRadiusNotPositive);
  kefC_Assert(nodeId.size() == elemId.size(), kefC_NodeIdLength);
  kefC_Assert(hasCrackFront.size() == elemId.size(), kefC_HasCrackFrontLength);
  kefC_Assert(crackPlaneDist.size() == elemId.size(), kefC_CrackPlaneDistLength);
  kefC_Assert(crackFrontDist.size() == elemId.size(), kefC_CrackFrontDistLength);
  kefC_Assert(allowCrackGrowth || !crackLocation.IsEmpty(), kefC_CrackLocationMissing);
}
