// The text and blob forms of lists and tables in the database file: exact texts written, round
// trips, and malformed input refused.
#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "dbfile/dbf_ListText.h"
#include "dbfile/dbf_TableBlob.h"
#include "dbfile/dbf_Utf8.h"
#include "platform/base/nex_Exception.h"
#include "tests/support/qmx_test.h"

namespace {

const double kInf = std::numeric_limits<double>::infinity();
const double kNaN = std::numeric_limits<double>::quiet_NaN();

TEST(DbText, ListsAreWrittenAsJson) {
  struct Case {
    std::string got;
    std::string want;
  };
  auto ints = [](std::vector<std::int32_t> v) { std::string s; dbf_AppendIntList(s, v); return s; };
  auto doubles = [](std::vector<double> v) { std::string s; dbf_AppendDoubleList(s, v); return s; };
  auto bools = [](std::vector<bool> v) { std::string s; dbf_AppendBoolList(s, v); return s; };
  auto texts = [](std::vector<cow_String> v) { std::string s; dbf_AppendTextList(s, v); return s; };
  auto refs = [](std::vector<dbf_Ref> v) {
    std::string s = "[";
    for (std::size_t i = 0; i < v.size(); ++i) {
      if (i) s += ',';
      dbf_AppendRef(s, v[i]);
    }
    return s + "]";
  };
  const Case cases[] = {
      {ints({}), "[]"},
      {ints({0, -1, INT32_MAX, INT32_MIN}), "[0,-1,2147483647,-2147483648]"},
      {doubles({0.1, -0.0, 1e300, 5e-324, 2.0}), "[0.1,-0,1e+300,5e-324,2]"},
      {doubles({kInf, -kInf, kNaN}), "[9e999,-9e999,null]"},
      {bools({true, false}), "[true,false]"},
      {texts({"", "plain", "q\"b\\s/"}), "[\"\",\"plain\",\"q\\\"b\\\\s/\"]"},
      {texts({"\n\r\t\b\f", std::string_view("\0\x1f\x7f", 3)}), "[\"\\n\\r\\t\\b\\f\",\"\\u0000\\u001f\x7f\"]"},
      {texts({"\xC3\xA9\xF0\x9F\x98\x80"}), "[\"\xC3\xA9\xF0\x9F\x98\x80\"]"},
      {refs({{1, 40370177}, {}, {12, 7}}), "[[1,40370177],null,[12,7]]"},
  };
  for (const Case& c : cases) EXPECT_EQ(c.got, c.want);
}

TEST(DbText, ListsComeBackFromTheirText) {
  std::vector<std::int32_t> i;
  ASSERT_TRUE(dbf_ParseIntList(" [ 1 , -2,2147483647 ] ", i));
  EXPECT_EQ(i, (std::vector<std::int32_t>{1, -2, 2147483647}));
  std::vector<double> d;
  ASSERT_TRUE(dbf_ParseDoubleList("[0.1,-0,1e+300,5e-324,9e999,-9e999,null,2,1E2]", d));
  ASSERT_EQ(d.size(), 9u);
  EXPECT_EQ(d[0], 0.1);
  EXPECT_TRUE(std::signbit(d[1]));
  EXPECT_EQ(d[3], 5e-324);
  EXPECT_EQ(d[4], kInf);
  EXPECT_EQ(d[5], -kInf);
  EXPECT_TRUE(std::isnan(d[6]));
  EXPECT_EQ(d[8], 100.0);
  std::vector<bool> b;
  ASSERT_TRUE(dbf_ParseBoolList("[true,false,true]", b));
  EXPECT_EQ(b, (std::vector<bool>{true, false, true}));
  std::vector<cow_String> t;
  ASSERT_TRUE(dbf_ParseTextList(R"(["", "a\"b", "\u00e9\ud83d\ude00", "\/\n", "raw é"])", t));
  ASSERT_EQ(t.size(), 5u);
  EXPECT_EQ(t[1].view(), "a\"b");
  EXPECT_EQ(t[2].view(), "\xC3\xA9\xF0\x9F\x98\x80");
  EXPECT_EQ(t[3].view(), "/\n");
  EXPECT_EQ(t[4].view(), "raw \xC3\xA9");
  // References as the writer gives them and as another tool might (blanks, long numbers, leading
  // zeros): the same list either way.
  struct RefCase {
    const char* text;
    std::vector<std::pair<std::int64_t, std::uint32_t>> refs;
  };
  const RefCase refCases[] = {
      {"[[3,40370177],null]", {{3, 40370177u}, {0, 0u}}},
      {" [ [3 , 40370177] ,\tnull ] ", {{3, 40370177u}, {0, 0u}}},
      {"[]", {}},
      {"[ ]", {}},
      {"[null,null]", {{0, 0u}, {0, 0u}}},
      {"[[9223372036854775807,4294967295]]", {{INT64_MAX, 4294967295u}}},
      {"[[007,0]]", {{7, 0u}}},
  };
  for (const RefCase& c : refCases) {
    std::vector<dbf_Ref> r;
    ASSERT_TRUE(dbf_ParseRefList(c.text, r)) << c.text;
    ASSERT_EQ(r.size(), c.refs.size()) << c.text;
    for (std::size_t k = 0; k < r.size(); ++k) {
      EXPECT_EQ(r[k].oid, c.refs[k].first) << c.text;
      EXPECT_EQ(r[k].classId, c.refs[k].second) << c.text;
    }
  }

  // Every double survives its text exactly.
  std::vector<double> all = {0.1, 1.0 / 3, -2.5e-308, 1.7976931348623157e308, 4.9e-324, 123456789.125};
  std::string s;
  dbf_AppendDoubleList(s, all);
  ASSERT_TRUE(dbf_ParseDoubleList(s, d));
  for (std::size_t k = 0; k < all.size(); ++k) EXPECT_EQ(std::bit_cast<std::uint64_t>(d[k]), std::bit_cast<std::uint64_t>(all[k]));
}

TEST(DbText, MalformedListsAreRefused) {
  std::vector<std::int32_t> i;
  for (const char* bad : {"", "[", "]", "[1,]", "[,1]", "[1 2]", "[1.5]", "[2147483648]", "[\"1\"]", "[1]x", "{}",
                          "[null]", "[+1]", "[1e2]"})
    EXPECT_FALSE(dbf_ParseIntList(bad, i)) << bad;
  std::vector<double> d;
  for (const char* bad : {"[nan]", "[inf]", "[Infinity]", "[1e999]", "[--1]", "[1.2.3]", "[true]", "[\"1\"]", "[.5]"})
    EXPECT_FALSE(dbf_ParseDoubleList(bad, d)) << bad;
  std::vector<bool> b;
  for (const char* bad : {"[1]", "[True]", "[null]", "[tru]"}) EXPECT_FALSE(dbf_ParseBoolList(bad, b)) << bad;
  std::vector<cow_String> t;
  for (const char* bad : {"[\"open]", "[\"\\x\"]", "[\"\\u12\"]", "[\"\\ud800\"]", "[\"\\udc00\"]", "['single']",
                          "[1]", "[\"a\" \"b\"]"})
    EXPECT_FALSE(dbf_ParseTextList(bad, t)) << bad;
  std::vector<dbf_Ref> r;
  for (const char* bad : {"[[0,1]]", "[[-1,1]]", "[[1]]", "[[1,2,3]]", "[[1,-2]]", "[[1,4294967296]]", "[1]", "[[1,2]",
                          "[[1,2],]", "[[1,2]]x", "[null", "[nul]", "[[1.5,2]]", "[[1,2e3]]", "[[9223372036854775808,1]]",
                          "[[1,2]][", "[[1,99999999999999999999]]"})
    EXPECT_FALSE(dbf_ParseRefList(bad, r)) << bad;
}

TEST(DbText, TablesTakeEightBytesOfSizeAndEightPerValue) {
  cow_2DArray<double> t{{1.0, 2.0, 3.0}, {-0.0, kInf, kNaN}};
  std::string blob;
  dbf_EncodeTable(t, blob);
  ASSERT_EQ(blob.size(), 8u + 8 * 6);
  const unsigned char head[] = {2, 0, 0, 0, 3, 0, 0, 0};
  EXPECT_EQ(std::memcmp(blob.data(), head, 8), 0);
  const unsigned char one[] = {0, 0, 0, 0, 0, 0, 0xF0, 0x3F};  // 1.0, little-endian
  EXPECT_EQ(std::memcmp(blob.data() + 8, one, 8), 0);
  const unsigned char negZero[] = {0, 0, 0, 0, 0, 0, 0, 0x80};  // the first value of the second row
  EXPECT_EQ(std::memcmp(blob.data() + 8 + 24, negZero, 8), 0);

  cow_2DArray<double> back;
  ASSERT_TRUE(dbf_DecodeTable(blob.data(), blob.size(), back));
  ASSERT_EQ(back.Rows(), 2u);
  ASSERT_EQ(back.Columns(), 3u);
  EXPECT_TRUE(std::signbit(back(1, 0)));
  EXPECT_TRUE(std::isnan(back(1, 2)));
  EXPECT_EQ(back(0, 2), 3.0);

  // Empty tables keep their shape.
  for (auto [rows, cols] : {std::pair<std::size_t, std::size_t>{0, 0}, {0, 4}, {5, 0}}) {
    cow_2DArray<double> empty(rows, cols);
    dbf_EncodeTable(empty, blob);
    ASSERT_EQ(blob.size(), 8u);
    ASSERT_TRUE(dbf_DecodeTable(blob.data(), blob.size(), back));
    EXPECT_EQ(back.Rows(), rows);
    EXPECT_EQ(back.Columns(), cols);
  }
}

TEST(DbText, BlobsOfTheWrongSizeAreNoTables) {
  struct Case {
    std::vector<unsigned char> bytes;
    const char* what;
  };
  const Case cases[] = {
      {{}, "empty"},
      {{1, 0, 0, 0}, "half a header"},
      {{1, 0, 0, 0, 1, 0, 0, 0}, "one value promised, none given"},
      {{1, 0, 0, 0, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}, "a stray byte"},
      {{0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}, "values for no rows"},
      {{1, 0, 0, 0, 2, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}, "too few values"},
      {{0xff, 0xff, 0xff, 0xff, 0xff, 0xff, 0xff, 0xff, 0, 0, 0, 0, 0, 0, 0, 0}, "sizes that overflow"},
  };
  for (const Case& c : cases) {
    cow_2DArray<double> t;
    EXPECT_FALSE(dbf_DecodeTable(c.bytes.data(), c.bytes.size(), t)) << c.what;
  }
}

// Invalid bytes before, inside and after the first eight bytes, where the check goes a word at a
// time, are found at their own offset.
TEST(DbText, TextThatIsNotUtf8IsFoundAtItsOffset) {
  struct Case {
    std::string text;
    std::optional<std::size_t> at;
  };
  const Case cases[] = {
      {"", std::nullopt},
      {"abcdefgh", std::nullopt},
      {"abcdefghijklmnopq", std::nullopt},
      {"\xFF" "bcdefghij", 0},
      {"abcdefg\xFF", 7},
      {"abcdefgh\xFF", 8},
      {"abcdefghijklmno\x80" "q", 15},
      {"abcdefgh\xC3\xA9ijklmnop", std::nullopt},  // a two-byte letter past the first word
      {"abcdefgh\xC3", 8},                          // cut short at the end
      {"abcdefg\xE2\x82\xAC" "defghij", std::nullopt},  // across a word boundary
      {"abcdefgh\xC0\xAF", 8},                     // overlong
      {"abcdefgh\xED\xA0\x80", 8},                // a surrogate
      {"abcdefgh\xF4\x90\x80\x80", 8},            // beyond U+10FFFF
  };
  for (const Case& c : cases) EXPECT_EQ(dbf_InvalidUtf8At(c.text), c.at) << c.text;
}

}  // namespace
