#include "kef/kefC_ModelContext.h"

#include "kef/kefC_DebondVCCT.h"
#include "kef/kefC_PointFastener.h"
#include "kef/kefC_assert.h"

// Only a beam MPC fastener names an MPC section; a connector names a connector section.
void kefC_AssertInModel(const kefC_PointFastener& fastener, const kefC_ModelContext& model) {
  if (fastener.GetSuppress()) return;
  fastener.AssertValid();
  if (fastener.GetConnectionType() == kefC_PointAdherendEnum::BEAM_MPC && model.isBeamMpcSection)
    kefC_Assert(model.isBeamMpcSection(fastener.GetSectionName()), kefC_MpcSectionNotBeam);
  if (model.isEdgeBased && !fastener.GetTargetSurface().IsEmpty())
    kefC_Assert(!model.isEdgeBased(fastener.GetTargetSurface()), kefC_TargetSurfaceEdgeBased);
}

void kefC_AssertInModel(const kefC_DebondVCCT& debond, const kefC_ModelContext& model) {
  if (debond.GetSuppress()) return;
  debond.AssertValid();
  if (model.isStandardContactPair)
    kefC_Assert(model.isStandardContactPair(debond.GetSurfToSurfInteraction()), kefC_InteractionNotStandardContactPair);
  if (model.isStandardStep) kefC_Assert(model.isStandardStep(debond.GetStepName()), kefC_StepNotStandard);
}
