// Every table of every connector behavior, in every shape (no rows, rows without cells, cells
// without rows), is validated without reading a cell it does not have: the sanitizer build runs
// this. Each shape either validates or fails with one of the module's messages, and validation
// changes nothing.
#include <functional>
#include <string>
#include <vector>

#include "kbe/kbeC_assert.h"
#include "tests/kbe/kbe_fixtures.h"

namespace {

using T2 = cow_2DArray<double>;

// One of the module's error messages (the content messages carry a text of their own).
bool IsModuleMessage(const std::string& m) {
  for (int code = 0; code <= 62; ++code)
    if (m == kbeC_ErrorMessage(static_cast<kbeC_ErrorEnm>(code))) return true;
  return false;
}

template <class T>
void ValidateEveryShape(const char* what, const std::function<void(T&, const T2&)>& put) {
  const std::size_t shapes[][2] = {{0, 0}, {1, 0}, {3, 0}, {0, 1}, {0, 4}, {1, 1}, {2, 1}, {1, 2}, {2, 3}};
  for (const auto& s : shapes) {
    SCOPED_TRACE(std::string(what) + " " + std::to_string(s[0]) + " x " + std::to_string(s[1]));
    T obj;
    put(obj, T2(s[0], s[1], 0.5));
    const T before = obj;
    const std::string failure = kbe_Failure(obj);  // "" when valid; throws nothing else
    EXPECT_TRUE(failure.empty() || IsModuleMessage(failure)) << failure;
    EXPECT_TRUE(obj == before);
  }
}

TEST(KbeTableShapes, EveryTableOfEveryBehaviorInEveryShape) {
  kbe_Start();
  using B = kbeC_TangentialBehavior;
  using F = B::FormulationEnm;
  using D = B::ExponentialDecayDefinitionEnm;
  ValidateEveryShape<B>("penalty", [](B& b, const T2& t) { b.SetTable(t); });
  ValidateEveryShape<B>("penalty, slip rate and pressure", [](B& b, const T2& t) {
    b.SetSlipRateDependency(true);
    b.SetPressureDependency(true);
    b.SetTable(t);
  });
  ValidateEveryShape<B>("decay coefficients", [](B& b, const T2& t) { b.SetFormulation(F::EXPONENTIAL_DECAY); b.SetTable(t); });
  ValidateEveryShape<B>("decay test data", [](B& b, const T2& t) {
    b.SetFormulation(F::EXPONENTIAL_DECAY);
    b.SetExponentialDecayDefinition(D::TEST_DATA);
    b.SetTable(t);
  });
  using P = kbeC_ConnectorPlasticity;
  ValidateEveryShape<P>("isotropic", [](P& p, const T2& t) { p.SetIsotropic(true); p.SetIsotropicTable(t); });
  ValidateEveryShape<P>("kinematic", [](P& p, const T2& t) { p.SetKinematic(true); p.SetKinematicTable(t); });
  using G = kbeC_ConnectorDamage;
  ValidateEveryShape<G>("tabular evolution", [](G& g, const T2& t) {
    g.SetEvolution(true);
    g.SetSoftening(G::SofteningEnm::TABULAR);
    g.SetEvolutionTable(t);
  });
  ValidateEveryShape<G>("initiation", [](G& g, const T2& t) { g.SetInitiationTable(t); });
  ValidateEveryShape<kbeC_ConnectorFriction>("friction", [](kbeC_ConnectorFriction& f, const T2& t) { f.SetTable(t); });
  ValidateEveryShape<kbeC_ConnectorElasticity>("elasticity", [](kbeC_ConnectorElasticity& e, const T2& t) { e.SetTable(t); });
  ValidateEveryShape<kbeC_ConnectorDamping>("damping", [](kbeC_ConnectorDamping& d, const T2& t) { d.SetTable(t); });
}

}  // namespace
