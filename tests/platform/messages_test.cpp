#include <gtest/gtest.h>

#include "platform/base/atr_String.h"
#include "platform/base/nex_Exception.h"
#include "tests/support/qmx_test.h"

namespace {

TEST(SubstituteFormat, PlaceholdersFillInOrder) {
  atr_SubstituteFormat two(atr_translate("first %d then %s."));
  two.Substitute(1, 42).Substitute(2, "text");
  EXPECT_EQ(two.Result().Text(), "first 42 then text.");
  // Placeholder numbers follow the order of the conversions, not of the calls.
  atr_SubstituteFormat reversed(atr_translate("%s-%s"));
  reversed.Substitute(2, "B").Substitute(1, "A");
  EXPECT_EQ(reversed.Result().Text(), "A-B");
  // An unfilled placeholder stays; %% is a percent sign; an empty string substitutes as nothing.
  atr_SubstituteFormat partial(atr_translate("100%% of %s and %d"));
  partial.Substitute(1, "");
  EXPECT_EQ(partial.Result().Text(), "100% of  and %d");
  EXPECT_TRUE(partial.Result().IsTranslatable());
  EXPECT_FALSE(atr_raw("x", 0).IsTranslatable());
  EXPECT_THROW(atr_SubstituteFormat(atr_raw("%s")).Substitute(0, "x"), std::invalid_argument);
}

TEST(Exceptions, ThrowRecordsPositionAndKeepsTheDerivedType) {
  auto e = qmx_Catch<nex_PrimError>([] { nex_PrimError(atr_raw("bad", 0)).Throw("some/file", 71); });
  EXPECT_STREQ(e.what(), "bad");
  EXPECT_STREQ(e.File(), "some/file");
  EXPECT_EQ(e.Line(), 71);
  EXPECT_STREQ(e.Kind(), "PrimException");
  // caught through the base as well
  try {
    nex_CmdError(atr_raw("refused", 0)).Throw("f", 2);
    FAIL();
  } catch (const QMXBasException& b) {
    EXPECT_STREQ(b.Kind(), "CmdException");
    EXPECT_EQ(b.Line(), 2);
    EXPECT_NE(dynamic_cast<const nex_CmdError*>(&b), nullptr);
  }
}

}  // namespace
