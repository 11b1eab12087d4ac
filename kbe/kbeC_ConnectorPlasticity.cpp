#include "kbe/kbeC_ConnectorPlasticity.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kbe/kbeC_Traits.h"
#include "kbe/kbeC_assert.h"
#include "kbe/kbeC_Checks.h"
#include "kbe/kbeC_PotentialIds.h"

kbeC_ConnectorPlasticity::kbeC_ConnectorPlasticity(const cls_ReadVisitor& r) : fw_PersistentClass(r) { fw_ReadFields(*this, r); }
void kbeC_ConnectorPlasticity::InitializeMetadata(cls_ClassRegistrar& r) {
  kbeC_InitializePotentialIdMetadata<kbeC_ConnectorPlasticity, kbeC_PlainPotentialIds<kbeC_ConnectorPlasticity>>(r);
}
const kbeC_ConnectorOptions& kbeC_ConnectorPlasticity::GetIsotropicOptions() const { return kbeC_Present(isotropicOptions, "isotropicOptions"); }
kbeC_ConnectorOptions& kbeC_ConnectorPlasticity::ModifyIsotropicOptions() { return kbeC_Present(isotropicOptions, "isotropicOptions"); }
const kbeC_ConnectorOptions& kbeC_ConnectorPlasticity::GetKinematicOptions() const { return kbeC_Present(kinematicOptions, "kinematicOptions"); }
kbeC_ConnectorOptions& kbeC_ConnectorPlasticity::ModifyKinematicOptions() { return kbeC_Present(kinematicOptions, "kinematicOptions"); }

void kbeC_ConnectorPlasticity::AppendConnectorPotential(const kbeC_ConnectorPotential& p) {
  connectorPotentials.Append(cow_COW<kbeC_ConnectorPotential>(p));
  ++lastId;
}

namespace {
// Data columns of the hardening tables, before temperature and field dependencies: tabular
// isotropic hardening gives yield force and plastic motion; the exponential law the yield force
// and its two parameters; half-cycle test data force and plastic motion; stabilized test data
// adds the cycle number; parameters give yield force, hardening modulus and its rate of decay.
std::size_t IsotropicColumns(kbeC_ConnectorPlasticity::IsotropicTypeEnm t) {
  return t == kbeC_ConnectorPlasticity::IsotropicTypeEnm::TABULAR ? 2 : 3;
}
std::size_t KinematicColumns(kbeC_ConnectorPlasticity::KinematicTypeEnm t) {
  return t == kbeC_ConnectorPlasticity::KinematicTypeEnm::HALF_CYCLE ? 2 : 3;
}
bool YieldNonZero(const cow_2DArray<double>& t) {
  for (std::size_t r = 0; r < t.Rows() && t.Columns() > 0; ++r)
    if (t(r, 0) == 0) return false;
  return true;
}
// Every value of the given columns of every row is greater than zero.
bool Positive(const cow_2DArray<double>& t, std::size_t first, std::size_t last) {
  for (std::size_t r = 0; r < t.Rows(); ++r)
    for (std::size_t c = first; c <= last && c < t.Columns(); ++c)
      if (!(t(r, c) > 0)) return false;
  return true;
}
}  // namespace

void kbeC_ConnectorPlasticity::AssertValid() const {
  for (std::int32_t c : components) kbeC_Assert(kbeC_InRange(c), kbeC_ComponentOutOfRange);
  kbeC_Assert(isotropic || kinematic, kbeC_NoHardening);
  kbeC_Assert(!(isotropic && !YieldNonZero(isotropicTable)), kbeC_YieldForceZero);
  kbeC_Assert(!(kinematic && !YieldNonZero(kinematicTable)), kbeC_YieldForceZero);
  if (isotropic)
    kbeC_Assert(kbeC_Columns(isotropicTable) == IsotropicColumns(isotropicType) + kbeC_Extra(isotropicTemperature, isotropicDependencies),
                kbeC_TableColumnsMismatch);
  if (kinematic)
    kbeC_Assert(kbeC_Columns(kinematicTable) == KinematicColumns(kinematicType) + kbeC_Extra(kinematicTemperature, kinematicDependencies),
                kbeC_TableColumnsMismatch);
  if (isotropic && isotropicType == IsotropicTypeEnm::EXPONENTIAL_LAW)
    kbeC_Assert(Positive(isotropicTable, 0, 2), kbeC_ExponentialLawNotPositive);
  if (kinematic && kinematicType == KinematicTypeEnm::PARAMETERS)
    kbeC_Assert(Positive(kinematicTable, 1, 2), kbeC_ExponentialLawNotPositive);
  kbeC_Assert(forcePotentialExponent > 0, kbeC_PotentialExponentNotPositive);
  kbeC_CheckPotentials(connectorPotentials);
  if (!isotropicOptions.IsNull()) {
    isotropicOptions->AssertValid();
    kbeC_AssertContent(isotropicType == IsotropicTypeEnm::TABULAR || isotropicOptions->RateOptionsAtDefaults(),
                       kbeC_RateOptionsNotAllowed, "Plasticity; isotropic definition must be TABULAR");
  }
  if (!kinematicOptions.IsNull()) {
    kinematicOptions->AssertValid();
    kbeC_AssertContent(kinematicOptions->RateOptionsAtDefaults(), kbeC_RateOptionsNotAllowed, "Plasticity; kinematic");
  }
}

template class fw_PersistentClass<kbeC_ConnectorPlasticity, kbeC_ConnectorBehaviorOption>;
