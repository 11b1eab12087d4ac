// A class whose validation starts with a check it shares with its family (the components of a
// connector option, the influence radius of a fastener, the spring-or-dashpot choice, the
// coordinate system of an analytical field, the smoothing and table checks of amplitudes) lists
// the codes of that shared check too, where they run: an object that breaks the first listed
// check and a later one fails with the first's message.
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "kam/kamC_EquallySpaced.h"
#include "kam/kamC_SmoothStep.h"
#include "kam/kamC_Tabular.h"
#include "kbe/kbeC_ConnectorDamping.h"
#include "kbe/kbeC_ConnectorElasticity.h"
#include "kbe/kbeC_ConnectorFailure.h"
#include "kbe/kbeC_ConnectorLock.h"
#include "kbe/kbeC_ConnectorStop.h"
#include "kef/kefC_AssembledFastener.h"
#include "kef/kefC_DiscreteFastener.h"
#include "kef/kefC_PointFastener.h"
#include "kef/kefC_SpringToGround.h"
#include "kef/kefC_TwoPointSpring.h"
#include "kfd/kfdC_ExpressionField.h"
#include "kfd/kfdC_MappedField.h"
#include "platform/base/nex_Exception.h"
#include "platform/persist/cls_Description.h"
#include "tests/support/qmx_test.h"

namespace {

template <class T>
std::string SharedChecksFailure(const T& obj) {
  try {
    obj.AssertValid();
  } catch (const nex_PrimError& e) {
    return e.what();
  }
  return "";
}

TEST(DescriptionSharedChecks, ListedWhereTheyRunAndFirstWhenTheyRunFirst) {
  qmx_StartLibrary();
  struct Case {
    const char* className;
    std::vector<int> codes;  // read from the class's validation and the shared checks it calls
    std::function<std::string()> failure;  // breaks the first listed check and a later one
  };
  const Case cases[] = {
      {"kbeC_ConnectorElasticity", {3, 4, 0, 5, 7, 13, 8, 9, 10, 12, 11},
       [] {
         kbeC_ConnectorElasticity e;  // no components, and a table that does not fit
         e.SetDependencies(-1);
         return SharedChecksFailure(e);
       }},
      {"kbeC_ConnectorDamping", {60, 61, 62, 3, 4, 0, 5, 7, 13, 8, 9, 10, 12, 11},
       [] {
         kbeC_ConnectorDamping d;  // its own rule runs before the shared components check
         d.SetConnDampType(kbeC_ConnectorDamping::ConnDampTypeEnum::STRUCTURAL);
         d.SetBehavior(kbeC_ConnectorDamping::BehaviorEnm::NONLINEAR);
         return SharedChecksFailure(d);
       }},
      {"kbeC_ConnectorStop", {3, 4, 1, 14}, [] { return SharedChecksFailure(kbeC_ConnectorStop()); }},
      {"kbeC_ConnectorLock", {3, 4, 16, 2, 14, 15}, [] { return SharedChecksFailure(kbeC_ConnectorLock()); }},
      {"kbeC_ConnectorFailure", {3, 4, 16, 2, 14, 15},
       [] { return SharedChecksFailure(kbeC_ConnectorFailure()); }},
      {"kefC_PointFastener", {12, 13, 14, 15, 16},
       [] {
         kefC_PointFastener f;
         f.SetInfluenceRadius(0.0);
         f.SetSearchRadius(0.0);
         return SharedChecksFailure(f);
       }},
      {"kefC_AssembledFastener", {12, 28, 29, 30, 31, 32, 33, 34},
       [] {
         kefC_AssembledFastener f;  // no template model either
         f.SetInfluenceRadius(-1.0);
         return SharedChecksFailure(f);
       }},
      {"kefC_DiscreteFastener", {12},
       [] {
         kefC_DiscreteFastener f;
         f.SetInfluenceRadius(0.0);
         return SharedChecksFailure(f);
       }},
      // neither spring nor dashpot, and no region or degree of freedom either
      {"kefC_SpringToGround", {3, 10, 9, 4, 5}, [] { return SharedChecksFailure(kefC_SpringToGround()); }},
      {"kefC_TwoPointSpring", {3, 10, 9, 6, 7, 8}, [] { return SharedChecksFailure(kefC_TwoPointSpring()); }},
      {"kfdC_ExpressionField", {2, 0},
       [] {
         kfdC_ExpressionField f;  // no system and no expression
         f.SetCsysType(kfdC_AnalyticalField::CsysTypeEnm::INVALID);
         f.SetExpression(cow_String(""));
         return SharedChecksFailure(f);
       }},
      {"kfdC_MappedField", {2, 22, 23, 24, 25},
       [] {
         kfdC_MappedField f;
         f.SetCsysType(kfdC_AnalyticalField::CsysTypeEnm::INVALID);
         return SharedChecksFailure(f);
       }},
      {"kamC_Tabular", {2, 11, 12, 0},
       [] {
         kamC_Tabular t;  // smoothing out of range and three columns
         t.SetSmooth(0.6);
         t.SetData(cow_2DArray<double>(2, 3));
         return SharedChecksFailure(t);
       }},
      {"kamC_EquallySpaced", {2, 9, 12},
       [] {
         kamC_EquallySpaced e;
         e.SetSmooth(0.6);
         e.SetFixedInterval(0.0);
         return SharedChecksFailure(e);
       }},
      {"kamC_SmoothStep", {11, 12, 0},
       [] {
         kamC_SmoothStep s;  // three columns and a single row
         s.SetData(cow_2DArray<double>(1, 3));
         return SharedChecksFailure(s);
       }},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.className);
    const cls_ClassDescription* d = cls_FindDescription(c.className);
    ASSERT_NE(d, nullptr);
    EXPECT_EQ(std::vector<int>(d->codes.begin(), d->codes.end()), c.codes);
    ASSERT_FALSE(c.codes.empty());
    const std::string first = cls_FindErrorMessage(c.className, c.codes.front());
    EXPECT_FALSE(first.empty());
    EXPECT_EQ(c.failure(), first);
  }
}

}  // namespace
