#pragma once
// The rules of constraints that need the model and the analysis: a tie's main region must be a
// surface (5), the set that adjusts a tie's secondary nodes must be valid (6), and rotations
// cannot be tied in an explicit analysis (7); and copying a constraint of a kind the module does
// not know (3). The caller that has the model answers the questions; a question left unanswered
// (an empty function) passes.
#include <functional>

#include "platform/model/rgnC_Region.h"

class kcoC_Constraint;
class kcoC_Tie;

struct kcoC_ModelContext {
  std::function<bool(const rgnC_Region& region)> isSurface;
  // Whether the set that adjusts the secondary nodes (the tie's tiedNset) is acceptable.
  std::function<bool(const rgnC_Region& set)> isValidAdjustSet;
  bool explicitAnalysis = false;
};

// The tie's own rules, then those judged against the model, in the order of their codes. A
// suppressed tie is not validated.
void kcoC_AssertInModel(const kcoC_Tie& tie, const kcoC_ModelContext& model);

// A copy of a constraint of a registered kind; any other kind is refused with code 3.
kcoC_Constraint* kcoC_CopyConstraint(const kcoC_Constraint& constraint);
