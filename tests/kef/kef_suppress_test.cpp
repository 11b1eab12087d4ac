// A suppressed feature is closed to edits of everything but its suppress flag, through the C++
// setters and through scripts alike; a refusal changes nothing, and un-suppressing reopens it.
#include <nlohmann/json.hpp>

#include <functional>
#include <string>
#include <vector>

#include "command/cmd_Session.h"
#include "kef/kefC_AssembledFastener.h"
#include "kef/kefC_ContourIntegral.h"
#include "kef/kefC_DebondVCCT.h"
#include "kef/kefC_FileImperfection.h"
#include "kef/kefC_HeatCapacitance.h"
#include "kef/kefC_NonstructuralMass.h"
#include "kef/kefC_PointFastener.h"
#include "kef/kefC_PointMassInertia.h"
#include "kef/kefC_SpringToGround.h"
#include "kef/kefC_TwoPointSpring.h"
#include "kef/kefC_XFEMCrack.h"
#include "platform/model/ddr_Model.h"
#include "tests/kef/kef_test.h"

namespace {

const char* const kCrack = "Suppressed cracks cannot be edited.";
const char* const kInertia = "Suppressed inertias cannot be edited.";
const char* const kSpring = "Suppressed springs/dashpots cannot be edited.";
const char* const kFastener = "Suppressed fasteners cannot be edited.";

// One edit of one kind: suppressed, it is refused with the message and leaves the object equal
// to its copy; un-suppressed, the same edit is taken.
template <class T>
void kef_CheckClosedWhileSuppressed(const char* what, const std::function<void(T&)>& edit, const std::string& message) {
  SCOPED_TRACE(what);
  T obj;
  obj.SetSuppress(true);
  const T before = obj;
  auto e = qmx_Catch<nex_PrimError>([&] { edit(obj); });
  EXPECT_EQ(e.Message(), message);
  EXPECT_STREQ(e.File(), "QMXOdbKefC.m/src/kefC_assert");
  EXPECT_TRUE(obj == before);
  obj.SetSuppress(false);
  EXPECT_NO_THROW(edit(obj));
  EXPECT_FALSE(obj == before);  // the edit took, not only the flag
  obj.SetSuppress(true);
  EXPECT_TRUE(obj.GetSuppress());
}

TEST(KefSuppressed, EveryKindOfTheFourFamiliesRefusesEditsWithItsOwnCode) {
  kef_Start();
  const auto pair = cow_List<rgnC_Region>(std::vector<rgnC_Region>{rgnC_Region("A"), rgnC_Region("B")});
  kef_CheckClosedWhileSuppressed<kefC_ContourIntegral>("contour integral", [](auto& c) { c.SetMidNodePosition(0.25); }, kCrack);
  kef_CheckClosedWhileSuppressed<kefC_XFEMCrack>("XFEM crack", [](auto& c) { c.SetSingularityCalcRadius(2.0); }, kCrack);
  kef_CheckClosedWhileSuppressed<kefC_DebondVCCT>("debond", [](auto& c) { c.SetPrintFreqVal(5); }, kCrack);
  kef_CheckClosedWhileSuppressed<kefC_PointMassInertia>("point mass", [](auto& p) { p.SetMass(3.0); }, kInertia);
  kef_CheckClosedWhileSuppressed<kefC_PointMassInertia>("point mass region", [](auto& p) { p.SetRegion(rgnC_Region("Set-1")); },
                                                       kInertia);
  kef_CheckClosedWhileSuppressed<kefC_NonstructuralMass>("nonstructural mass", [](auto& n) { n.SetMagnitude(4.0); }, kInertia);
  kef_CheckClosedWhileSuppressed<kefC_HeatCapacitance>("heat capacitance", [](auto& h) { h.SetDependencies(2); }, kInertia);
  kef_CheckClosedWhileSuppressed<kefC_SpringToGround>("spring to ground, shared member", [](auto& s) { s.SetDof1(3); }, kSpring);
  kef_CheckClosedWhileSuppressed<kefC_TwoPointSpring>("two points, own member", [&](auto& s) { s.SetRegionPairs(pair); }, kSpring);
  kef_CheckClosedWhileSuppressed<kefC_PointFastener>("point fastener, shared member", [](auto& f) { f.SetUr2(true); }, kFastener);
  kef_CheckClosedWhileSuppressed<kefC_PointFastener>("point fastener, own member", [](auto& f) { f.SetSectionName("S"); },
                                                    kFastener);
  kef_CheckClosedWhileSuppressed<kefC_AssembledFastener>("assembled fastener", [](auto& f) { f.SetTemplateModel("T"); },
                                                        kFastener);
}

TEST(KefSuppressed, ImperfectionsHaveNoGuardAndStayOpen) {
  kef_Start();
  kefC_FileImperfection f;
  f.SetSuppress(true);
  EXPECT_NO_THROW(f.SetStep(4));
  EXPECT_EQ(f.GetStep(), 4);
}

cmd_Json kef_Run(cmd_Session& s, const std::string& line) { return s.ExecuteLine(line); }

TEST(KefSuppressed, ScriptsAreRefusedTheSameWayAndChangeNothing) {
  kef_Start();
  cmd_Session s;
  ASSERT_TRUE(kef_Run(s, R"({"op":"create","path":["Model-1"]})")["ok"].get<bool>());
  struct Case {
    const char* container;
    const char* type;
    const char* member;
    const char* value;
    const char* message;
  };
  const Case cases[] = {
      {"inertias", "PointMassInertia", "mass", "2.0", kInertia},
      {"cracks", "XFEMCrack", "singularityCalcRadius", "1.5", kCrack},
      {"cracks", "DebondVCCT", "initiationStep", "\"Step-1\"", kCrack},
      {"springDashpots", "TwoPointSpringDashpot", "axis", "\"FIXED_DOF\"", kSpring},
      {"fasteners", "PointFastener", "rotationalCoupling", "\"ROTATIONAL_STRUCTURAL\"", kFastener},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.type);
    const std::string path = std::string(R"(["Model-1","engineeringFeatures",")") + c.container + R"(","F-1"])";
    const std::string member = std::string(R"(["Model-1","engineeringFeatures",")") + c.container + R"(","F-1",")" + c.member + "\"]";
    ASSERT_TRUE(kef_Run(s, R"({"op":"create","path":)" + path + R"(,"type":")" + c.type + R"(","values":{"suppress":true}})")["ok"]
                    .get<bool>());
    const cmd_Json before = kef_Run(s, R"({"op":"get","path":)" + path + "}");
    const cmd_Json refused = kef_Run(s, R"({"op":"set","path":)" + member + R"(,"value":)" + c.value + "}");
    ASSERT_FALSE(refused["ok"].get<bool>());
    EXPECT_EQ(refused["error"]["message"], c.message);
    EXPECT_EQ(refused["error"]["kind"], "PrimException");
    EXPECT_EQ(kef_Run(s, R"({"op":"get","path":)" + path + "}"), before);
    // the flag itself stays open, and once it is off the edit is taken
    EXPECT_TRUE(kef_Run(s, R"({"op":"set","path":)" + path + R"(,"values":{"suppress":false}})")["ok"].get<bool>());
    const cmd_Json taken = kef_Run(s, R"({"op":"set","path":)" + member + R"(,"value":)" + c.value + "}");
    EXPECT_TRUE(taken["ok"].get<bool>()) << taken.dump();
    EXPECT_EQ(kef_Run(s, R"({"op":"get","path":)" + member + "}")["result"], cmd_Json::parse(c.value));
    EXPECT_TRUE(kef_Run(s, R"({"op":"delete","path":)" + path + "}")["ok"].get<bool>());
  }
}

}  // namespace
