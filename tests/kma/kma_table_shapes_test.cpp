// The material options that read cells of their tables, in every table shape (no rows, rows
// without cells, cells without rows): each shape validates or fails with one of the module's
// messages, validation reads no cell the table lacks (the sanitizer build runs this) and changes
// nothing.
#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "kma/kmaC_ConcreteDamagedPlasticity.h"
#include "kma/kmaC_MagneticPermeability.h"
#include "kma/kmaC_MullinsEffect.h"
#include "kma/kmaC_Plastic.h"
#include "kma/kmaC_assert.h"
#include "platform/base/nex_Exception.h"
#include "tests/kma/kmaT_Support.h"

namespace {

bool kmaShapes_IsModuleMessage(const std::string& m) {
  for (int code = 0; code <= 75; ++code)
    if (m == kmaC_ErrorMessage(static_cast<kmaC_ErrorEnm>(code))) return true;
  return false;
}

template <class T>
void kmaShapes_ValidateEveryShape(const char* what, const std::function<void(T&, const kmaC_MaterialTable&)>& put) {
  const std::size_t shapes[][2] = {{0, 0}, {1, 0}, {3, 0}, {0, 1}, {0, 5}, {1, 1}, {2, 1}, {1, 2}, {2, 3}};
  for (const auto& s : shapes) {
    SCOPED_TRACE(std::string(what) + " " + std::to_string(s[0]) + " x " + std::to_string(s[1]));
    T obj;
    put(obj, kmaC_MaterialTable(cow_2DArray<double>(s[0], s[1], 2.0)));
    const T before = obj;
    std::string failure;
    try {
      obj.AssertValid();
    } catch (const nex_PrimError& e) {
      failure = e.what();
    }
    EXPECT_TRUE(failure.empty() || kmaShapes_IsModuleMessage(failure)) << failure;
    EXPECT_TRUE(obj == before);
  }
}

TEST(KmaTableShapes, OptionsThatReadCellsInEveryShape) {
  kmaT_Start();
  using M = kmaC_MagneticPermeability;
  kmaShapes_ValidateEveryShape<M>("nonlinear B-H curve", [](M& m, const kmaC_MaterialTable& t) {
    m.SetNonlinearBH(true);
    m.SetTable(t);
  });
  using P = kmaC_Plastic;
  for (P::HardeningEnm h : {P::HardeningEnm::ISOTROPIC, P::HardeningEnm::KINEMATIC, P::HardeningEnm::COMBINED}) {
    kmaShapes_ValidateEveryShape<P>("plastic", [h](P& p, const kmaC_MaterialTable& t) {
      p.SetHardening(h);
      p.SetTable(t);
    });
  }
  using U = kmaC_MullinsEffect;
  kmaShapes_ValidateEveryShape<U>("mullins constants", [](U& u, const kmaC_MaterialTable& t) {
    u.SetDefinition(U::DefinitionEnm::CONSTANTS);
    u.SetTable(t);
  });
  using C = kmaC_ConcreteDamagedPlasticity;
  kmaShapes_ValidateEveryShape<C>("concrete damaged plasticity", [](C& c, const kmaC_MaterialTable& t) { c.SetTable(t); });
}

}  // namespace
