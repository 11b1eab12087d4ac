// A uid's text: 32 hexadecimal digits, either case, read back to the same uid; anything else is
// refused with the same message wherever the fault sits.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/base/nex_Exception.h"
#include "platform/persist/cls_Uid.h"

namespace {

TEST(UidText, ReadsBackWhatItWrote) {
  const cls_Uid cases[] = {cls_Uid(0, 1), cls_Uid(0x0123456789abcdefULL, 0xfedcba9876543210ULL),
                           cls_Uid(~0ULL, ~0ULL), cls_Uid()};
  for (const cls_Uid& uid : cases) {
    SCOPED_TRACE(uid.ToString());
    EXPECT_EQ(cls_Uid::FromString(uid.ToString()), uid);
  }
  EXPECT_EQ(cls_Uid::FromString("0123456789ABCDEFfedcba9876543210"),
            cls_Uid(0x0123456789abcdefULL, 0xfedcba9876543210ULL));
  EXPECT_EQ(cls_Uid::FromString("00000000000000000000000000000000"), cls_Uid::Null());
}

TEST(UidText, RefusesAnythingButThirtyTwoDigits) {
  const std::string good = "0123456789abcdef0123456789abcdef";
  std::vector<std::string> bad = {"", "xyz", good.substr(1), good + "0", good.substr(0, 16)};
  // One wrong byte at each end of each half, and bytes next to the digit ranges.
  for (std::size_t at : {0u, 15u, 16u, 31u}) {
    for (char c : {'g', 'G', '/', ':', '@', '`', ' ', static_cast<char>(0xB0), static_cast<char>(0xFF)}) {
      std::string s = good;
      s[at] = c;
      bad.push_back(s);
    }
  }
  for (const std::string& text : bad) {
    SCOPED_TRACE(text);
    try {
      cls_Uid::FromString(text);
      ADD_FAILURE() << "accepted";
    } catch (const nex_CmdError& e) {
      EXPECT_EQ(e.Message(), "Invalid uid \"" + text + "\": 32 hexadecimal digits expected");
    }
  }
}

}  // namespace
