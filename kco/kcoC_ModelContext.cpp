#include "kco/kcoC_ModelContext.h"

#include "kco/kcoC_Constraint.h"
#include "kco/kcoC_Tie.h"
#include "kco/kcoC_assert.h"
#include "platform/persist/cls_ClassRegistrar.h"

void kcoC_AssertInModel(const kcoC_Tie& tie, const kcoC_ModelContext& model) {
  if (tie.GetSuppress()) return;
  tie.AssertValid();
  if (model.isSurface) kcoC_Assert(model.isSurface(tie.GetMaster()), kcoC_TieMainNotSurface);
  if (tie.GetAdjust() && !tie.GetTiedNset().IsEmpty() && model.isValidAdjustSet)
    kcoC_Assert(model.isValidAdjustSet(tie.GetTiedNset()), kcoC_TieAdjustSetInvalid);
  kcoC_Assert(!(model.explicitAnalysis && tie.GetTieRotations()), kcoC_TieRotationsInExplicit);
}

// A kind is known when its class is registered as a member of the constraint family.
kcoC_Constraint* kcoC_CopyConstraint(const kcoC_Constraint& constraint) {
  const auto& registry = cls_ClassRegistrar::Instance();
  const cls_ClassMetadata* root = registry.ByName(kcoC_Constraint::kClassName);
  const cls_ClassMetadata* kind = registry.ByTypeId(constraint.ClassTypeId());
  kcoC_Assert(root && kind && kind->CanConstruct() && kind->IsA(*root), kcoC_UnknownConstraintType);
  return constraint.Copy();
}
