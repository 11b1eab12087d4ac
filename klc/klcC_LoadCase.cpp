#include "klc/klcC_LoadCase.h"

#include <cmath>
#include <set>
#include <string>

#include "framework/fw_PersistentClassImpl.h"
#include "klc/klcC_assert.h"

klcC_LoadCase::klcC_LoadCase(const cls_ReadVisitor& r) : uid(r.GetUid()) { fw_ReadFields(*this, r); }

namespace {
// One list, term by term: named, not named before in this list, finitely scaled. A load and a
// boundary condition may share a name: they are different objects of the model.
void klcC_CheckTerms(const klcC_LoadCase::Terms& terms, klcC_ErrorEnm repeated) {
  std::set<std::string> seen;
  for (const klcC_LoadCase::Term& t : terms) {
    klcC_Assert(!t.IsNull() && !t.Get().GetName().empty(), klcC_NameMissing);
    klcC_Assert(seen.insert(t.Get().GetName().str()).second, repeated);
    klcC_Assert(std::isfinite(t.Get().GetScaleFactor()), klcC_ScaleFactorNotFinite);
  }
}
}  // namespace

// A zero factor passes: it switches a member off without removing it from the case.
void klcC_LoadCase::AssertValid() const {
  if (suppress) return;
  klcC_Assert(!stepName.empty(), klcC_StepMissing);
  klcC_Assert(loads.size() + boundaryConditions.size() > 0, klcC_NothingCombined);
  klcC_CheckTerms(loads, klcC_LoadRepeated);
  klcC_CheckTerms(boundaryConditions, klcC_BoundaryConditionRepeated);
}

template class fw_PersistentClass<klcC_LoadCase, mem_Allocated>;
