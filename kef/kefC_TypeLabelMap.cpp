#include "kef/kefC_TypeLabelMap.h"

#include <memory>

#include "kef/kefC_AssembledFastener.h"
#include "kef/kefC_ContourIntegral.h"
#include "kef/kefC_DataImperfection.h"
#include "kef/kefC_DebondVCCT.h"
#include "kef/kefC_DiscreteFastener.h"
#include "kef/kefC_FileImperfection.h"
#include "kef/kefC_HeatCapacitance.h"
#include "kef/kefC_InputImperfection.h"
#include "kef/kefC_NonstructuralMass.h"
#include "kef/kefC_PointFastener.h"
#include "kef/kefC_PointMassInertia.h"
#include "kef/kefC_SpringToGround.h"
#include "kef/kefC_TwoPointSpring.h"

namespace {
std::unique_ptr<const kefC_TypeLabelMap>& Held() {
  static std::unique_ptr<const kefC_TypeLabelMap> map;
  return map;
}
}  // namespace

// The XFEM crack has no label of its own.
kefC_TypeLabelMap::kefC_TypeLabelMap()
    : entries_{
          {kefC_PointMassInertia::TypeId(), "Point mass/inertia"},
          {kefC_NonstructuralMass::TypeId(), "Nonstructural mass"},
          {kefC_HeatCapacitance::TypeId(), "Heat capacitance"},
          {kefC_ContourIntegral::TypeId(), "Contour integral"},
          {kefC_DebondVCCT::TypeId(), "Debond using VCCT"},
          {kefC_SpringToGround::TypeId(), "Connect points to ground (Standard)"},
          {kefC_TwoPointSpring::TypeId(), "Connect two points"},
          {kefC_PointFastener::TypeId(), "Point-based"},
          {kefC_DiscreteFastener::TypeId(), "Discrete"},
          {kefC_AssembledFastener::TypeId(), "Assembled"},
          {kefC_FileImperfection::TypeId(), "File Imperfection"},
          {kefC_InputImperfection::TypeId(), "Input Imperfection"},
          {kefC_DataImperfection::TypeId(), "Data Imperfection"},
      } {}

const kefC_TypeLabelMap& kefC_TypeLabelMap::Instance() {
  auto& held = Held();
  if (!held) held.reset(new kefC_TypeLabelMap());
  return *held;
}

void kefC_TypeLabelMap::Release() { Held().reset(); }

const char* kefC_TypeLabelMap::Label(unsigned typeId) const {
  for (const auto& [id, label] : entries_)
    if (id == typeId) return label;
  return "";
}
