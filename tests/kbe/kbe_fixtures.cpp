#include "tests/kbe/kbe_fixtures.h"

#include <sqlite3.h>

#include "dbfile/dbf_Vfs.h"

namespace {
using Table = cow_2DArray<double>;
using Ints = cow_List<std::int32_t>;

kbeC_ConnectorOptions OwnOptions() {
  kbeC_ConnectorOptions o;
  o.SetUseBehRegSettings(false);
  o.SetDefaultTolerance(false);
  o.SetRegularization(0.01);
  o.SetDefaultRateFactor(false);
  o.SetRateFactor(0.75);
  o.SetInterpolation(kbeC_ConnectorOptions::InterpolationEnm::LOGARITHMIC);
  o.SetExtrapolation(kbeC_ConnectorOptions::ExtrapolationEnm::LINEAR);
  return o;
}

kbeC_DerivedComponent Derived() {
  kbeC_DerivedComponent d;
  d.SetName("radial");
  kbeC_CDCTerm t;
  t.SetTermOperator(kbeC_CDCTerm::TermOperatorEnm::MACAULEY);
  t.SetTermSign(kbeC_CDCTerm::TermSignEnm::NEGATIVE);
  t.SetLocalDependency(true);
  t.SetIndepCompType(kbeC_CDCTerm::IndepCompTypeEnm::MOTION);
  t.SetTempDependency(true);
  t.SetFieldDependencies(1);
  t.SetIntrinsicComponents(Ints{2, 3});
  t.SetIndepComponents(Ints{1});
  t.SetTable(Table{{1, 0, 20, 0}, {2, 1, 20, 0}});
  t.SetOptions(kbeC_ConnectorOptions());
  d.AppendCdcTerm(t);
  d.AppendCdcTerm(kbeC_CDCTerm());
  return d;
}

kbeC_ConnectorPotential Potential(int component) {
  kbeC_ConnectorPotential p;
  p.SetComponentNumber(component);
  p.SetSign(kbeC_ConnectorPotential::SignEnm::NEGATIVE);
  p.SetScaleFactor(2.5);
  p.SetPositiveExponent(3);
  p.SetShiftFactor(-0.5);
  p.SetHFunction(kbeC_ConnectorPotential::HFunctionEnm::MACAULEY);
  return p;
}
}  // namespace

kbeC_ConnectorSection kbe_FilledSection() {
  kbeC_ConnectorSection s;
  kbeC_ConnectorElasticity e;
  e.SetComponents(Ints{1, 2});
  e.SetBehavior(kbeC_ConnectorElasticity::BehaviorEnm::NONLINEAR);
  e.SetCoupling(kbeC_ConnectorElasticity::CouplingEnm::COUPLED_MOTION);
  e.SetDependencies(1);
  e.SetTemperatureDependency(true);
  e.SetIndependentComponents(Ints{3});
  e.SetTable(Table{{1, 2, 3, 20, 0}});
  e.SetOptions(OwnOptions());
  s.AppendBehaviorOption(e);

  kbeC_ConnectorDamping d;
  d.SetComponents(Ints{4});
  d.SetConnDampType(kbeC_ConnectorDamping::ConnDampTypeEnum::STRUCTURAL);
  d.SetFrequencyDependency(true);
  d.SetTable(Table{{0.02, 10}});
  s.AppendBehaviorOption(d);

  kbeC_ConnectorPlasticity p;
  p.SetCoupling(kbeC_ConnectorPlasticity::CouplingEnm::COUPLED);
  p.SetIsotropicType(kbeC_ConnectorPlasticity::IsotropicTypeEnm::EXPONENTIAL_LAW);
  p.SetIsotropicTable(Table{{100, 20, 3}});
  p.SetIsotropicOptions(kbeC_ConnectorOptions());
  p.SetKinematic(true);
  p.SetKinematicType(kbeC_ConnectorPlasticity::KinematicTypeEnm::PARAMETERS);
  p.SetKinematicTemperature(true);
  p.SetKinematicDependencies(2);
  p.SetKinematicTable(Table{{100, 10, 2, 20, 0, 0}});
  p.SetForcePotentialOperator(kbeC_ConnectorPlasticity::ForcePotentialOperatorEnm::MAXIMUM);
  p.SetForcePotentialExponent(3);
  p.AppendConnectorPotential(Potential(1));
  kbeC_ConnectorPotential derived;
  derived.SetComponentStyle(kbeC_ConnectorPotential::ComponentStyleEnm::DERIVED_COMPONENT);
  derived.SetComponentName("radial");
  derived.SetDerivedComponent(Derived());
  p.AppendConnectorPotential(derived);
  s.AppendBehaviorOption(p);

  kbeC_ConnectorFriction f;
  f.SetFrictionModel(kbeC_ConnectorFriction::FrictionModelEnm::USER_CUSTOMIZED);
  f.SetSlipStyle(kbeC_ConnectorFriction::SlipStyleEnm::COMPUTE);
  f.SetTangentDirection(2);
  f.SetStickStiffness(1e5);
  f.SetSlipDependency(true);
  f.SetTemperatureDependency(true);
  f.SetDependencies(1);
  f.SetUseContactForceComponent(true);
  f.SetContactForceStyle(kbeC_ConnectorFriction::ContactForceStyleEnm::DERIVED_COMPONENT);
  f.SetContactForceComponent(3);
  f.SetDerivedComponent(Derived());
  f.SetForcePotentialOperator(kbeC_ConnectorFriction::ForcePotentialOperatorEnm::MAXIMUM);
  f.AppendConnectorPotential(Potential(2));
  kbeC_TangentialBehavior law;
  law.SetFormulation(kbeC_TangentialBehavior::FormulationEnm::EXPONENTIAL_DECAY);
  law.SetTable(Table{{0.5, 0.3, 2}});
  law.SetShearStressLimit(1e3);
  f.SetTangentialBehavior(law);
  kbeC_ContactForce force;
  force.SetIndependentComponent(2);
  force.SetTable(Table{{1, 0}, {2, 1}});
  f.SetContactForces(kbeC_ContactForceList{cow_COW<kbeC_ContactForce>(force)});
  f.SetTable(Table{{0.1, 0.2}});
  f.SetOptions(OwnOptions());
  s.AppendBehaviorOption(f);

  kbeC_ConnectorDamage g;
  g.SetComponents(Ints{1, 2, 3});
  g.SetCoupling(kbeC_ConnectorDamage::CouplingEnm::COUPLED);
  g.SetCriterion(kbeC_ConnectorDamage::CriterionEnm::PLASTIC_MOTION);
  g.SetInitiationTemperature(true);
  g.SetInitiationPotentialOperator(kbeC_ConnectorDamage::InitiationPotentialOperatorEnm::MAXIMUM);
  g.SetInitiationPotentialExponent(4);
  g.SetInitiationTable(Table{{0.1, 0.2, 20}});
  g.SetInitiationOptions(OwnOptions());
  g.AppendInitiationPotential(Potential(3));
  g.SetEvolution(true);
  g.SetEvolutionType(kbeC_ConnectorDamage::EvolutionTypeEnm::ENERGY_TYPE);
  g.SetSoftening(kbeC_ConnectorDamage::SofteningEnm::TABULAR);
  g.SetUseAffected(true);
  g.SetAffectedComponents(Ints{2});
  g.SetDegradation(kbeC_ConnectorDamage::DegradationEnm::MULTIPLICATIVE);
  g.SetEvolutionTable(Table{{0, 0}, {0.5, 1}});
  g.AppendEvolutionPotential(Potential(4));
  g.AppendEvolutionPotential(Potential(5));
  s.AppendBehaviorOption(g);

  kbeC_ConnectorFailure fl;
  fl.SetComponents(Ints{1});
  fl.SetReleaseComponent(1);
  fl.SetMinMotion(-2);
  fl.SetMaxForce(500);
  s.AppendBehaviorOption(fl);

  kbeC_ConnectorLock l;
  l.SetComponents(Ints{1, 2});
  l.SetMaxForce(200);
  s.AppendBehaviorOption(l);

  kbeC_ConnectorStop st;
  st.SetComponents(Ints{6});
  st.SetMinMotion(-0.1);
  st.SetMaxMotion(0.1);
  s.AppendBehaviorOption(st);
  return s;
}

kbeC_ConnectorSectionContainer& kbe_Sections(ddr_Database& db, const char* model) {
  return dynamic_cast<kbeC_ConnectorSectionContainer&>(*db.ModifyModel(model)->ModifyRepository("connectorSections"));
}

std::string kbe_Query(const std::string& file, const std::string& sql) {
  sqlite3* db = nullptr;
  EXPECT_EQ(sqlite3_open_v2(file.c_str(), &db, SQLITE_OPEN_READONLY, dbf_ChecksumVfs()), SQLITE_OK);
  sqlite3_stmt* s = nullptr;
  std::string out;
  if (sqlite3_prepare_v2(db, sql.c_str(), -1, &s, nullptr) == SQLITE_OK && sqlite3_step(s) == SQLITE_ROW) {
    const unsigned char* t = sqlite3_column_text(s, 0);
    out = t ? reinterpret_cast<const char*>(t) : "NULL";
  } else {
    ADD_FAILURE() << sqlite3_errmsg(db) << " in " << sql;
  }
  sqlite3_finalize(s);
  sqlite3_close(db);
  return out;
}

void kbe_Edit(const std::string& file, const std::string& sql) {
  sqlite3* db = nullptr;
  ASSERT_EQ(sqlite3_open_v2(file.c_str(), &db, SQLITE_OPEN_READWRITE, dbf_ChecksumVfs()), SQLITE_OK);
  char* err = nullptr;
  int rc = sqlite3_exec(db, sql.c_str(), nullptr, nullptr, &err);
  EXPECT_EQ(rc, SQLITE_OK) << (err ? err : "") << " in " << sql;
  sqlite3_free(err);
  sqlite3_close(db);
}
