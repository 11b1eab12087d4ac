#include "kco/kcoC_ConstraintTypeLabelMap.h"

#include <memory>

#include "kco/kcoC_AdjustPoints.h"
#include "kco/kcoC_Coupling.h"
#include "kco/kcoC_DisplayBody.h"
#include "kco/kcoC_EmbeddedRegion.h"
#include "kco/kcoC_Equation.h"
#include "kco/kcoC_MPC.h"
#include "kco/kcoC_RigidBody.h"
#include "kco/kcoC_ShellSolidCoupling.h"
#include "kco/kcoC_Tie.h"

namespace {
std::unique_ptr<const kcoC_ConstraintTypeLabelMap>& Held() {
  static std::unique_ptr<const kcoC_ConstraintTypeLabelMap> map;
  return map;
}
}  // namespace

kcoC_ConstraintTypeLabelMap::kcoC_ConstraintTypeLabelMap()
    : entries_{
          {kcoC_Equation::TypeId(), "Equation"},
          {kcoC_Tie::TypeId(), "Tie"},
          {kcoC_RigidBody::TypeId(), "Rigid body"},
          {kcoC_Coupling::TypeId(), "Coupling"},
          {kcoC_AdjustPoints::TypeId(), "Adjust points"},
          {kcoC_EmbeddedRegion::TypeId(), "Embedded region"},
          {kcoC_DisplayBody::TypeId(), "Display body"},
          {kcoC_ShellSolidCoupling::TypeId(), "Shell-to-solid coupling"},
          {kcoC_MPC::TypeId(), "MPC Constraint"},
      } {}

const kcoC_ConstraintTypeLabelMap& kcoC_ConstraintTypeLabelMap::Instance() {
  auto& held = Held();
  if (!held) held.reset(new kcoC_ConstraintTypeLabelMap());
  return *held;
}

void kcoC_ConstraintTypeLabelMap::Release() { Held().reset(); }

const char* kcoC_ConstraintTypeLabelMap::Label(unsigned typeId) const {
  for (const auto& [id, label] : entries_)
    if (id == typeId) return label;
  return "";
}
