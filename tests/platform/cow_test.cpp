#include <gtest/gtest.h>

#include <limits>
#include <random>
#include <string_view>

#include "platform/base/cow_2DArray.h"
#include "platform/base/cow_COW.h"
#include "platform/base/cow_List.h"
#include "platform/base/cow_Map.h"
#include "platform/base/cow_String.h"

namespace {

struct Shape {
  static int copies;
  virtual ~Shape() = default;
  virtual Shape* Copy() const = 0;
  virtual int Sides() const = 0;
  int tag = 0;
  bool operator==(const Shape& o) const { return Sides() == o.Sides() && tag == o.tag; }
};
int Shape::copies = 0;
struct Square : Shape {
  Square* Copy() const override {
    ++copies;
    return mem_New<Square>(*this);
  }
  int Sides() const override { return 4; }
};

TEST(CowHandles, CopiesShareUntilTheFirstNonConstAccess) {
  cow_COW<Shape, cow_Virtual<Shape>> a(mem_New<Square>());
  auto b = a;
  EXPECT_EQ(a.UseCount(), 2);
  EXPECT_TRUE(a.SharesBodyWith(b));
  // const access does not separate
  const auto& cb = b;
  EXPECT_EQ(cb.Get().Sides(), 4);
  EXPECT_TRUE(a.SharesBodyWith(b));
  Shape::copies = 0;
  b.Get().tag = 7;  // separates through the virtual Copy()
  EXPECT_EQ(Shape::copies, 1);
  EXPECT_FALSE(a.SharesBodyWith(b));
  EXPECT_EQ(a.Get().tag, 0);
  EXPECT_EQ(b.Get().tag, 7);
  EXPECT_EQ(a.UseCount(), 1);
  // an unshared body is modified in place
  b.Get().tag = 8;
  EXPECT_EQ(Shape::copies, 1);
}

TEST(CowHandles, DirectPolicyCopiesByConstruction) {
  cow_COW<std::string> a(std::string("x"));
  auto b = a;
  b.Get() += "y";
  EXPECT_EQ(a.Get(), "x");
  EXPECT_EQ(b.Get(), "xy");
  cow_COW<std::string> null;
  EXPECT_TRUE(null.IsNull());
  EXPECT_FALSE(null == a);
  EXPECT_TRUE(null == cow_COW<std::string>());
}

TEST(CowList, OperationsAndSeparation) {
  cow_List<int> a(cow_ListFill{}, 3, 5);
  ASSERT_EQ(a.size(), 3u);
  cow_List<int> b = a;
  EXPECT_TRUE(a.SharesBodyWith(b));
  b.Append(6);
  EXPECT_FALSE(a.SharesBodyWith(b));
  EXPECT_EQ(a, (cow_List<int>{5, 5, 5}));
  EXPECT_EQ(b, (cow_List<int>{5, 5, 5, 6}));
  b.RemoveFirst();
  b.RemoveLast();
  EXPECT_EQ(b, (cow_List<int>{5, 5}));
  cow_List<int> c{1, 2, 3, 4};
  c.RemoveIndex(1);
  EXPECT_EQ(c, (cow_List<int>{1, 3, 4}));
  c.Resize(5);
  EXPECT_EQ(c, (cow_List<int>{1, 3, 4, 0, 0}));
  EXPECT_EQ(c.GetCArray()[2], 4);
  EXPECT_NE(c, b);
  EXPECT_THROW(c.RemoveIndex(5), std::out_of_range);
  EXPECT_THROW(cow_List<int>().RemoveLast(), std::out_of_range);
  EXPECT_EQ(cow_List<int>().GetCArray(), nullptr);
}

TEST(Cow2DArray, ShapeAccessAndSeparation) {
  cow_2DArray<double> t{{1, 2, 3}, {4, 5, 6}};
  EXPECT_EQ(t.Rows(), 2u);
  EXPECT_EQ(t.Columns(), 3u);
  EXPECT_EQ(t(1, 2), 6.0);
  cow_2DArray<double> u = t;
  EXPECT_TRUE(u.SharesBodyWith(t));
  u(0, 0) = 9;
  EXPECT_FALSE(u.SharesBodyWith(t));
  EXPECT_EQ(t(0, 0), 1.0);
  EXPECT_NE(t, u);
  // same numbers in another shape are another table
  EXPECT_NE(t, (cow_2DArray<double>{{1, 2}, {3, 4}, {5, 6}}));
  EXPECT_THROW((cow_2DArray<double>{{1, 2}, {3}}), std::invalid_argument);
  // an empty table keeps its width
  EXPECT_NE(cow_2DArray<double>(), cow_2DArray<double>(0, 4));
  EXPECT_EQ(cow_2DArray<double>(0, 4), cow_2DArray<double>(0, 4));
}

// A table read back from a file is a separate body: a NaN cell must not make it unequal to the
// table it was saved from, while a NaN still differs from any number.
TEST(Cow2DArray, NaNCellsEqualThemselvesAcrossBodies) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  const cow_2DArray<double> t{{1, nan}, {-0.0, 3}};
  const cow_2DArray<double> separate{{1, nan}, {0.0, 3}};
  ASSERT_FALSE(separate.SharesBodyWith(t));
  EXPECT_EQ(t, separate);
  EXPECT_NE(t, (cow_2DArray<double>{{1, 2}, {0.0, 3}}));
  EXPECT_NE((cow_2DArray<double>{{1, 2}, {0.0, 3}}), t);
  EXPECT_NE(t, (cow_2DArray<double>{{nan, nan}, {0.0, 3}}));
}

TEST(CowMap, InsertRemoveSeparate) {
  cow_Map<cow_String, int> m;
  m.Insert("a", 1);
  auto n = m;
  EXPECT_TRUE(n.SharesBodyWith(m));
  n.Insert("b", 2);
  EXPECT_EQ(m.Size(), 1u);
  EXPECT_EQ(n.Size(), 2u);
  EXPECT_TRUE(n.Remove("a"));
  EXPECT_FALSE(n.Remove("a"));
  EXPECT_EQ(*m.Find("a"), 1);
  EXPECT_EQ(n.Find("a"), nullptr);
}

TEST(CowString, SharingAndComparison) {
  cow_String a("Steel");
  cow_String b = a;
  EXPECT_EQ(a.UseCount(), 2);
  EXPECT_EQ(b, "Steel");
  EXPECT_LT(cow_String("Alpha"), cow_String("Beta"));
  EXPECT_EQ(cow_String(""), cow_String());
  EXPECT_EQ(cow_String().size(), 0u);
  EXPECT_STREQ(cow_String().c_str(), "");
  std::string big(100, 'x');
  EXPECT_EQ(cow_String(big).str(), big);
}

TEST(CowString, NaturalOrder) {
  struct Case {
    const char* a;
    const char* b;
    int sign;
  };
  const Case cases[] = {
      {"Part-2", "Part-10", -1}, {"Part-10", "Part-2", 1}, {"a", "b", -1},         {"abc", "abc", 0},
      {"x9", "x10", -1},         {"x", "x1", -1},          {"M-01", "M-1", -1},    {"M-1", "M-01", 1},
      {"10", "9", 1},            {"", "a", -1},            {"a2b10", "a2b9", 1},   {"007", "7", -1},
  };
  for (const auto& c : cases) {
    int r = cow_NaturalCompare(c.a, c.b);
    EXPECT_EQ((r > 0) - (r < 0), c.sign) << c.a << " vs " << c.b;
  }
}

// The natural order the plain way, from the first byte: runs of digits by value (leading zeros
// dropped, then the longer is greater, then digit by digit), other bytes as bytes, and ties by
// plain byte order.
int NaturalReference(std::string_view a, std::string_view b) {
  auto digit = [](char c) { return c >= '0' && c <= '9'; };
  std::size_t i = 0, j = 0;
  while (i < a.size() && j < b.size()) {
    if (digit(a[i]) && digit(b[j])) {
      std::size_t ei = i, ej = j;
      while (ei < a.size() && digit(a[ei])) ++ei;
      while (ej < b.size() && digit(b[ej])) ++ej;
      std::string_view x = a.substr(i, ei - i), y = b.substr(j, ej - j);
      while (!x.empty() && x[0] == '0') x.remove_prefix(1);
      while (!y.empty() && y[0] == '0') y.remove_prefix(1);
      if (x.size() != y.size()) return x.size() < y.size() ? -1 : 1;
      if (x != y) return x < y ? -1 : 1;
      i = ei;
      j = ej;
    } else {
      if (a[i] != b[j]) return static_cast<unsigned char>(a[i]) < static_cast<unsigned char>(b[j]) ? -1 : 1;
      ++i;
      ++j;
    }
  }
  if (i < a.size() || j < b.size()) return i < a.size() ? 1 : -1;
  return (a > b) - (a < b);
}

TEST(CowString, NaturalOrderAgreesWithThePlainWalk) {
  // Keys from a few bytes, digits and zeros among them, many sharing long prefixes (past eight
  // bytes, where the comparison skips words at a time).
  std::mt19937 rng(20261125);
  const std::string alphabet = "ab-0019\xC3";
  const char* prefixes[] = {"", "", "Section-", "Section-1000000", "Part-0000007"};
  auto tail = [&](std::string k) {
    for (std::size_t n = rng() % 8; n > 0; --n) k += alphabet[rng() % alphabet.size()];
    return k;
  };
  for (int n = 0; n < 200000; ++n) {
    const std::string a = tail(prefixes[rng() % 5]), b = rng() % 4 == 0 ? a : tail(prefixes[rng() % 5]);
    std::string c = a;  // near a: one byte changed, or a longer or shorter
    if (!c.empty() && rng() % 2) c[rng() % c.size()] = alphabet[rng() % alphabet.size()];
    const std::string longer = tail(a), shorter = a.substr(0, a.empty() ? 0 : rng() % a.size());
    for (const std::string& other : {b, c, longer, shorter}) {
      const int got = cow_NaturalCompare(a, other), want = NaturalReference(a, other);
      ASSERT_EQ((got > 0) - (got < 0), want) << "\"" << a << "\" vs \"" << other << "\"";
    }
  }
}

}  // namespace
