#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <string>

#include "kad/kadC_AdptMeshCtrl.h"
#include "kad/kadC_AdptMeshDomain.h"
#include "kad/kadC_assert.h"
#include "platform/base/nex_Exception.h"
#include "tests/support/qmx_test.h"

namespace {

using Ctrl = kadC_AdptMeshCtrl;
const double kNaN = std::numeric_limits<double>::quiet_NaN();

// The message AssertValid throws, or "" when it passes; checks the source position too.
template <class T>
std::string Failure(const T& obj) {
  try {
    obj.AssertValid();
  } catch (const nex_PrimError& e) {
    EXPECT_STREQ(e.File(), "QMXOdbKadC.m/src/kadC_assert");
    EXPECT_EQ(e.Line(), 71);
    return e.Message();
  }
  return "";
}

const std::string kInitial = "Initial feature angle must be greater than or equal to zero and less than or equal to 180.";
const std::string kTransition =
    "Transition feature angle must be greater than or equal to zero and less than or equal to 180.";
const std::string kVolumetric = "Volumetric smoothing weight must be greater than or equal to zero.";
const std::string kLaplacian = "Laplacian smoothing weight must be greater than or equal to zero.";
const std::string kEquipotential = "Equipotential smoothing weight must be greater than or equal to zero.";
const std::string kProjection = "Original configuration projection weight must be greater than or equal to zero.";
const std::string kConstraint =
    "Mesh constraint angle must be greater than or equal to zero and less than or equal to 180.";
const std::string kCurvature = "Curvature refinement must be greater than or equal to zero.";

TEST(KadControlValidation, EachRuleAtItsBoundariesAndTheFirstBrokenWins) {
  struct Case {
    const char* what;
    std::function<void(Ctrl&)> change;
    std::string message;  // "" passes
  };
  const Case cases[] = {
      {"defaults", [](Ctrl&) {}, ""},
      {"initial 0", [](Ctrl& c) { c.SetInitialFeatureAngle(0); }, ""},
      {"initial 180", [](Ctrl& c) { c.SetInitialFeatureAngle(180); }, ""},
      {"initial 180.0001", [](Ctrl& c) { c.SetInitialFeatureAngle(180.0001); }, kInitial},
      {"initial -1e-9", [](Ctrl& c) { c.SetInitialFeatureAngle(-1e-9); }, kInitial},
      {"initial NaN", [](Ctrl& c) { c.SetInitialFeatureAngle(kNaN); }, kInitial},
      {"transition 180", [](Ctrl& c) { c.SetTransitionFeatureAngle(180); }, ""},
      {"transition 181", [](Ctrl& c) { c.SetTransitionFeatureAngle(181); }, kTransition},
      {"transition NaN", [](Ctrl& c) { c.SetTransitionFeatureAngle(kNaN); }, kTransition},
      {"volumetric -0.1", [](Ctrl& c) { c.SetVolumetricSmoothingWeight(-0.1); }, kVolumetric},
      {"volumetric NaN", [](Ctrl& c) { c.SetVolumetricSmoothingWeight(kNaN); }, kVolumetric},
      {"standard volumetric -0.1 reports the volumetric message",
       [](Ctrl& c) { c.SetStandardVolumetricSmoothingWeight(-0.1); }, kVolumetric},
      {"standard volumetric NaN", [](Ctrl& c) { c.SetStandardVolumetricSmoothingWeight(kNaN); }, kVolumetric},
      {"laplacian -1", [](Ctrl& c) { c.SetLaplacianSmoothingWeight(-1); }, kLaplacian},
      {"laplacian NaN", [](Ctrl& c) { c.SetLaplacianSmoothingWeight(kNaN); }, kLaplacian},
      {"equipotential -1", [](Ctrl& c) { c.SetEquipotentialSmoothingWeight(-1); }, kEquipotential},
      {"equipotential NaN", [](Ctrl& c) { c.SetEquipotentialSmoothingWeight(kNaN); }, kEquipotential},
      {"projection -1", [](Ctrl& c) { c.SetOriginalConfigurationProjectionWeight(-1); }, kProjection},
      {"projection NaN", [](Ctrl& c) { c.SetOriginalConfigurationProjectionWeight(kNaN); }, kProjection},
      {"constraint 0", [](Ctrl& c) { c.SetMeshConstraintAngle(0); }, ""},
      {"constraint 180.5", [](Ctrl& c) { c.SetMeshConstraintAngle(180.5); }, kConstraint},
      {"constraint NaN", [](Ctrl& c) { c.SetMeshConstraintAngle(kNaN); }, kConstraint},
      {"curvature 0", [](Ctrl& c) { c.SetCurvatureRefinement(0); }, ""},
      {"curvature -0.5", [](Ctrl& c) { c.SetCurvatureRefinement(-0.5); }, kCurvature},
      {"curvature NaN", [](Ctrl& c) { c.SetCurvatureRefinement(kNaN); }, kCurvature},
      {"weights of 1.0 each pass although their sum exceeds one",
       [](Ctrl& c) {
         c.SetVolumetricSmoothingWeight(1);
         c.SetStandardVolumetricSmoothingWeight(1);
         c.SetLaplacianSmoothingWeight(1);
         c.SetEquipotentialSmoothingWeight(1);
         c.SetOriginalConfigurationProjectionWeight(1);
       },
       ""},
      // With several rules broken, the first in validation order is reported.
      {"initial before transition",
       [](Ctrl& c) { c.SetTransitionFeatureAngle(200); c.SetInitialFeatureAngle(200); }, kInitial},
      {"standard volumetric before laplacian",
       [](Ctrl& c) { c.SetLaplacianSmoothingWeight(-1); c.SetStandardVolumetricSmoothingWeight(-1); }, kVolumetric},
      {"projection before constraint angle",
       [](Ctrl& c) { c.SetMeshConstraintAngle(-1); c.SetOriginalConfigurationProjectionWeight(-1); }, kProjection},
      {"constraint angle before curvature",
       [](Ctrl& c) { c.SetCurvatureRefinement(-1); c.SetMeshConstraintAngle(190); }, kConstraint},
      {"all NaN: the first rule",
       [](Ctrl& c) { c.SetInitialFeatureAngle(kNaN); c.SetTransitionFeatureAngle(kNaN); c.SetCurvatureRefinement(kNaN); },
       kInitial},
  };
  for (const auto& c : cases) {
    Ctrl ctrl;
    c.change(ctrl);
    const Ctrl before = ctrl;
    EXPECT_EQ(Failure(ctrl), c.message) << c.what;
    EXPECT_EQ(ctrl, before) << c.what << ": validation must not change the object";
  }
}

TEST(KadDomainValidation, RulesAndOrder) {
  using D = kadC_AdptMeshDomain;
  struct Case {
    std::function<void(D&)> change;
    std::string message;
  };
  const std::string freq = "Frequency value must be greater than zero.";
  const std::string sweeps = "Initial remeshing sweeps must be greater than zero.";
  const std::string perInc = "Sweeps per increment must be greater than zero.";
  const Case cases[] = {
      {[](D&) {}, ""},
      {[](D& d) { d.SetInitialRemeshingSweeps(0); }, ""},  // only the sign is tested
      {[](D& d) { d.SetInitialRemeshingSweeps(-1); }, sweeps},
      {[](D& d) { d.SetFrequency(0); }, freq},
      {[](D& d) { d.SetFrequency(1); }, ""},
      {[](D& d) { d.SetSweepsPerIncrement(0); }, perInc},
      {[](D& d) {
         d.SetSweepsPerIncrement(0);
         d.SetInitialRemeshingSweeps(-5);
       },
       sweeps},
      {[](D& d) {
         d.SetSweepsPerIncrement(-1);
         d.SetFrequency(-1);
       },
       freq},
  };
  int i = 0;
  for (const auto& c : cases) {
    D d;
    EXPECT_TRUE(d.GetRegion().IsEmpty());  // a domain without a region passes
    c.change(d);
    EXPECT_EQ(Failure(d), c.message) << "case " << i++;
  }
}

TEST(KadAssert, TheWholeTableAndUnknownCodes) {
  const char* expected[] = {
      "Frequency value must be greater than zero.",
      "Initial remeshing sweeps must be greater than zero.",
      "Sweeps per increment must be greater than zero.",
      "Free boundary upwinding factor must be greater than or equal to zero and less than or equal to one.",
      "Initial feature angle must be greater than or equal to zero and less than or equal to 180.",
      "Transition feature angle must be greater than or equal to zero and less than or equal to 180.",
      "Volumetric smoothing weight must be greater than or equal to zero.",
      "Laplacian smoothing weight must be greater than or equal to zero.",
      "Equipotential smoothing weight must be greater than or equal to zero.",
      "Mesh constraint angle must be greater than or equal to zero and less than or equal to 180.",
      "The sum of smoothing weights must be less than or equal to one.",
      "A region must be specified.",
      "Curvature refinement must be greater than or equal to zero.",
      "Original configuration projection weight must be greater than or equal to zero.",
  };
  for (int code = 0; code < 14; ++code) {
    EXPECT_STREQ(kadC_ErrorMessage(static_cast<kadC_ErrorEnm>(code)), expected[code]);
    EXPECT_NO_THROW(kadC_Assert(true, static_cast<kadC_ErrorEnm>(code)));
  }
  // Codes 3, 10 and 11 are never raised by validation, but the assert function produces them.
  for (int code : {3, 10, 11}) {
    auto e = qmx_Catch<nex_PrimError>([&] { kadC_Assert(false, static_cast<kadC_ErrorEnm>(code)); });
    EXPECT_EQ(e.Message(), expected[code]);
    EXPECT_FALSE(e.GetMessage().IsTranslatable());
    EXPECT_EQ(e.Line(), 71);
  }
  for (int code : {-1, 14, 1000}) {
    EXPECT_STREQ(kadC_ErrorMessage(static_cast<kadC_ErrorEnm>(code)), "");
    auto e = qmx_Catch<nex_PrimError>([&] { kadC_Assert(false, static_cast<kadC_ErrorEnm>(code)); });
    EXPECT_EQ(e.Message(), "");
    EXPECT_STREQ(e.File(), "QMXOdbKadC.m/src/kadC_assert");
  }
}

}  // namespace
