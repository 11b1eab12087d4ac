#pragma once
// The rules of engineering features that need the model: whether a point fastener's target
// surface is edge-based and its MPC section of beam type, whether a VCCT debond's interaction is a
// general contact pair and its initiation step a general step. The caller that has the model
// answers these questions; a question left unanswered (an empty function) passes.
#include <functional>

#include "platform/base/cow_String.h"
#include "platform/model/rgnC_Region.h"

class kefC_PointFastener;
class kefC_DebondVCCT;

struct kefC_ModelContext {
  std::function<bool(const rgnC_Region& surface)> isEdgeBased;
  std::function<bool(const cow_String& section)> isBeamMpcSection;
  std::function<bool(const cow_String& interaction)> isStandardContactPair;
  std::function<bool(const cow_String& step)> isStandardStep;
};

// The feature's own rules (AssertValid), then those judged against the model, in order: for a
// point fastener, a beam MPC section (17) and a target surface that is not edge-based (41); for a
// debond, the contact pair (39) and the step (40). A suppressed feature is not validated.
void kefC_AssertInModel(const kefC_PointFastener& fastener, const kefC_ModelContext& model);
void kefC_AssertInModel(const kefC_DebondVCCT& debond, const kefC_ModelContext& model);
