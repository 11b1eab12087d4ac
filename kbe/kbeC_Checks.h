#pragma once
// Rules that several connector behaviors share. Included only by the module's .cpp files.
#include <cstddef>
#include <cstdint>
#include <string>

#include "kbe/kbeC_ConnectorOptions.h"
#include "kbe/kbeC_ConnectorPotential.h"
#include "kbe/kbeC_Values.h"
#include "kbe/kbeC_assert.h"
#include "platform/base/cow_2DArray.h"
#include "platform/base/cow_COW.h"
#include "platform/base/cow_List.h"
#include "platform/base/nex_Exception.h"

inline bool kbeC_InRange(std::int32_t component) { return component >= 1 && component <= 6; }

// The object an optional member holds; refuses an empty member.
template <class T>
const T& kbeC_Present(const cow_COW<T>& h, const char* member) {
  if (h.IsNull()) nex_ThrowCmd(std::string("The member \"") + member + "\" holds no object");
  return h.Get();
}
template <class T>
T& kbeC_Present(cow_COW<T>& h, const char* member) {
  if (h.IsNull()) nex_ThrowCmd(std::string("The member \"") + member + "\" holds no object");
  return h.Get();
}

// True when the value is one of its enumeration's literals.
template <class E>
bool kbeC_Listed(E v) {
  const omu_EnumLiteral* t = omu_LiteralTable(E{});
  for (int i = 0; t[i].text; ++i)
    if (t[i].value == static_cast<std::int64_t>(v)) return true;
  return false;
}

// A non-empty table whose values are all zero.
bool kbeC_AllZero(const cow_2DArray<double>& t);
// The number of columns of a table; 0 for a table without rows.
std::size_t kbeC_Columns(const cow_2DArray<double>& t);
// The columns that temperature and field dependencies add to a table.
inline std::size_t kbeC_Extra(bool temperature, std::int32_t dependencies) {
  return (temperature ? 1 : 0) + static_cast<std::size_t>(dependencies > 0 ? dependencies : 0);
}
// The components as the text of a message: "1, 2, 3".
cow_String kbeC_ComponentText(const cow_List<std::int32_t>& components);

// At least one component, each 1 to 6.
void kbeC_CheckComponents(const cow_List<std::int32_t>& components);
// Validates each potential of a list in order.
void kbeC_CheckPotentials(const cow_List<cow_COW<kbeC_ConnectorPotential>>& potentials);

// The members that elasticity and damping share, with behavior and coupling as their stored
// integers (LINEAR 0, NONLINEAR 1, RIGID 2; UNCOUPLED 0, COUPLED 1, COUPLED_POSITION 2,
// COUPLED_MOTION 3).
struct kbeC_SpringLike {
  const cow_List<std::int32_t>& components;
  int behavior;
  int coupling;
  std::int32_t dependencies;
  bool temperatureDependency;
  bool frequencyDependency;
  const cow_List<std::int32_t>& independentComponents;
  const cow_2DArray<double>& table;
  const kbeC_ConnectorOptions* options;
};
// The number of table columns the members call for (behavior RIGID aside).
std::size_t kbeC_ExpectedColumns(const kbeC_SpringLike& s);
// The rules of elasticity (and of damping after its own), `label` naming the behavior in the
// refusal of rate options.
void kbeC_CheckSpringLike(const kbeC_SpringLike& s, const char* label);

// The rules of a lock or a failure: components, the affected component ("ALL" or 1 to 6), at
// least one limit, and minima below maxima where both are given.
void kbeC_CheckLimitsImpl(const cow_List<std::int32_t>& components, bool all, std::int32_t affected, double minMotion,
                          double maxMotion, double minForce, double maxForce);
template <class E>
void kbeC_CheckLimits(const cow_List<std::int32_t>& components, kbeC_ComponentOrAll<E> affected, double minMotion,
                      double maxMotion, double minForce, double maxForce) {
  kbeC_CheckLimitsImpl(components, affected.IsAll(), affected.value, minMotion, maxMotion, minForce, maxForce);
}
