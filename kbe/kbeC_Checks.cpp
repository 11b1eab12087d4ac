#include "kbe/kbeC_Checks.h"

#include <set>

bool kbeC_AllZero(const cow_2DArray<double>& t) {
  if (t.Rows() == 0 || t.Columns() == 0) return false;
  for (std::size_t r = 0; r < t.Rows(); ++r)
    for (std::size_t c = 0; c < t.Columns(); ++c)
      if (t(r, c) != 0) return false;
  return true;
}

std::size_t kbeC_Columns(const cow_2DArray<double>& t) { return t.Rows() == 0 ? 0 : t.Columns(); }

cow_String kbeC_ComponentText(const cow_List<std::int32_t>& components) {
  std::string text;
  for (std::int32_t c : components) text += (text.empty() ? "" : ", ") + std::to_string(c);
  return cow_String(text);
}

void kbeC_CheckComponents(const cow_List<std::int32_t>& components) {
  kbeC_Assert(!components.empty(), kbeC_NoComponents);
  for (std::int32_t c : components) kbeC_Assert(kbeC_InRange(c), kbeC_ComponentOutOfRange);
}

void kbeC_CheckPotentials(const cow_List<cow_COW<kbeC_ConnectorPotential>>& potentials) {
  for (const auto& p : potentials)
    if (!p.IsNull()) p->AssertValid();
}

std::size_t kbeC_ExpectedColumns(const kbeC_SpringLike& s) {
  const std::size_t n = s.components.size(), m = s.independentComponents.size();
  std::size_t data = 0;
  if (s.behavior == 0 && s.coupling == 0) data = n;
  else if (s.behavior == 0 && s.coupling == 1) data = n * (n + 1) / 2;
  else if (s.behavior == 1 && s.coupling == 0) data = 2;
  else if (s.behavior == 1 && (s.coupling == 2 || s.coupling == 3)) data = m + n;
  return data + kbeC_Extra(s.temperatureDependency, s.dependencies) + (s.frequencyDependency ? 1 : 0);
}

void kbeC_CheckSpringLike(const kbeC_SpringLike& s, const char* label) {
  kbeC_CheckComponents(s.components);
  kbeC_Assert(s.dependencies >= 0, kbeC_DependenciesBelowMinimum);
  if (s.frequencyDependency) {
    kbeC_Assert(s.behavior == 0, kbeC_FrequencyNeedsLinear);
    kbeC_Assert(s.coupling == 0, kbeC_FrequencyNeedsUncoupled);
  }
  if (!s.independentComponents.empty()) {
    kbeC_Assert(s.behavior != 0, kbeC_IndependentWithLinear);
    kbeC_Assert(s.coupling != 0, kbeC_IndependentWithUncoupled);
    kbeC_Assert(s.independentComponents.size() <= 6, kbeC_IndependentCount);
    std::set<std::int32_t> seen;
    for (std::int32_t c : s.independentComponents) kbeC_Assert(seen.insert(c).second, kbeC_IndependentDuplicate);
  } else {
    kbeC_Assert(!(s.behavior == 1 && s.coupling != 0), kbeC_NoIndependentComponent);
  }
  if (s.behavior != 2) kbeC_Assert(kbeC_Columns(s.table) == kbeC_ExpectedColumns(s), kbeC_TableWidthMismatch);
  if (s.options) {
    s.options->AssertValid();
    // The rate factor filters the lookup of nonlinear data; linear and rigid data have no rate.
    kbeC_AssertContent(s.behavior == 1 || s.options->RateOptionsAtDefaults(), kbeC_RateOptionsNotAllowed, label);
  }
}

void kbeC_CheckLimitsImpl(const cow_List<std::int32_t>& components, bool all, std::int32_t affected, double minMotion,
                          double maxMotion, double minForce, double maxForce) {
  kbeC_CheckComponents(components);
  kbeC_Assert(all || kbeC_InRange(affected), kbeC_AffectedComponentOutOfRange);
  const double u = kbeC_kUnspecified;
  kbeC_Assert(minMotion != u || maxMotion != u || minForce != u || maxForce != u, kbeC_NoMotionCriterion);
  if (minMotion != u && maxMotion != u) kbeC_Assert(minMotion < maxMotion, kbeC_MinMotionNotBelowMax);
  if (minForce != u && maxForce != u) kbeC_Assert(minForce < maxForce, kbeC_MinForceNotBelowMax);
}
