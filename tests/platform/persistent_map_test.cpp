#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <iterator>
#include <map>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

#include "platform/base/cow_PersistentMap.h"
#include "platform/base/cow_PersistentMapDiff.h"

namespace persistent_map_test {

// Counts live instances and copies; throws on the copy after `throwAfter` more copies.
struct Tracked {
  static inline int live = 0, copies = 0, throwAfter = -1;
  int v = 0;
  explicit Tracked(int x = 0) : v(x) { ++live; }
  Tracked(const Tracked& o) : v(o.v) {
    if (throwAfter == 0) throw std::runtime_error("copy refused");
    if (throwAfter > 0) --throwAfter;
    ++copies;
    ++live;
  }
  Tracked(Tracked&& o) noexcept : v(o.v) { ++live; }
  Tracked& operator=(const Tracked&) = default;
  Tracked& operator=(Tracked&&) noexcept = default;
  ~Tracked() { --live; }
  bool operator==(const Tracked& o) const { return v == o.v; }
};
using Map = cow_PersistentMap<int, Tracked>;
using Ref = std::map<int, int>;

::testing::AssertionResult Same(const Map& m, const Ref& r) {
  if (m.size() != r.size()) return ::testing::AssertionFailure() << "size " << m.size() << " vs " << r.size();
  auto it = r.begin();
  for (const auto& [k, v] : m) {
    if (it == r.end() || k != it->first || v.v != it->second) return ::testing::AssertionFailure() << "at key " << k;
    ++it;
  }
  if (!m.Balanced()) return ::testing::AssertionFailure() << "invariants broken";
  return ::testing::AssertionSuccess();
}

Map FromRef(const Ref& r) {
  Map::Builder b;
  for (const auto& [k, v] : r) EXPECT_TRUE(b.Append(k, Tracked(v)));
  return std::move(b).Build();
}

// Keys from it to the end, so that iterators of both maps can be compared.
template <class It>
std::vector<int> KeysFrom(It it, It end) {
  std::vector<int> keys;
  while (it != end) keys.push_back((it++)->first);
  return keys;
}

enum class Kind { kPut, kModify, kErase };
void Apply(Kind kind, int key, Map& m, Ref& r) {
  switch (kind) {
    case Kind::kPut: m.insert_or_assign(key, Tracked(-1)), r[key] = -1; break;
    case Kind::kModify: m.Modify(key)->v = r[key] = -1; break;
    case Kind::kErase: m.erase(key), r.erase(key); break;
  }
}

static_assert(std::forward_iterator<Map::const_iterator>);

TEST(PersistentMap, RandomOperationsMatchStdMapAndSnapshotsStayIntact) {
  std::mt19937 rng(20240531);
  Map m;
  Ref r;
  std::vector<std::pair<Map, Ref>> snapshots;
  for (int step = 0; step < 20000; ++step) {
    const int k = static_cast<int>(rng() % 200) * 2;  // even keys; odd ones are never present
    const int val = static_cast<int>(rng() % 1000);
    switch (rng() % 5) {
      case 0:
      case 1: {
        const auto [it, added] = m.insert_or_assign(k, Tracked(val));
        const auto [rit, radded] = r.insert_or_assign(k, val);
        ASSERT_EQ(added, radded);
        ASSERT_EQ(it->second.v, val);
        ASSERT_EQ(KeysFrom(it, m.end()), KeysFrom(rit, r.end()));
        break;
      }
      case 2: ASSERT_EQ(m.erase(k), r.erase(k)); break;
      case 3: {
        Tracked* p = m.Modify(k);
        ASSERT_EQ(p != nullptr, r.count(k) == 1);
        if (p) p->v = r[k] = val;
        ASSERT_EQ(m.Modify(k + 1), nullptr);
        break;
      }
      default:
        ASSERT_EQ(m.count(k), r.count(k));
        ASSERT_EQ(m.count(k + 1), 0u);
        ASSERT_EQ(m.Find(k + 1), nullptr);
        ASSERT_EQ(KeysFrom(m.find(k), m.end()), KeysFrom(r.find(k), r.end()));
    }
    ASSERT_TRUE(Same(m, r)) << "step " << step;
    if (step % 500 == 0) snapshots.emplace_back(m, r);
    if (step % 1500 == 1499) {  // continue from an old version; the others must not notice
      const auto& s = snapshots[rng() % snapshots.size()];
      m = s.first;
      r = s.second;
    }
  }
  for (const auto& [sm, sr] : snapshots) EXPECT_TRUE(Same(sm, sr));
}

TEST(PersistentMap, ChangeSeparatesOnlyThePathAndLeavesTheOtherCopyIntact) {
  Ref base;
  for (int k = 0; k < 2000; k += 2) base[k] = k;
  const struct {
    Kind kind;
    int key;
  } changes[] = {{Kind::kPut, 1001}, {Kind::kPut, 1000}, {Kind::kModify, 600},
                 {Kind::kErase, 1998}, {Kind::kErase, 1022}, {Kind::kErase, 0}};
  const Map original = FromRef(base);
  for (const auto& [kind, key] : changes) {
    for (const bool changeTheCopy : {true, false}) {
      SCOPED_TRACE(testing::Message() << "change " << static_cast<int>(kind) << " of " << key);
      Map a = original, b = a;
      Map& changed = changeTheCopy ? b : a;
      const Map& kept = changeTheCopy ? a : b;
      EXPECT_EQ(changed.Modify(1), nullptr);  // absent keys separate nothing
      EXPECT_EQ(changed.erase(3), 0u);
      ASSERT_TRUE(a.SharesRootWith(b));
      std::vector<const Tracked*> before;
      for (const auto& [k, v] : kept) before.push_back(&v);
      Ref expected = base;
      Tracked::copies = 0;
      Apply(kind, key, changed, expected);
      EXPECT_FALSE(a.SharesRootWith(b));
      ASSERT_TRUE(Same(kept, base));
      EXPECT_TRUE(Same(changed, expected));
      EXPECT_FALSE(a == b);
      std::size_t i = 0, separated = 0;
      for (const auto& [k, v] : kept) {
        EXPECT_EQ(&v, before[i++]) << "moved key " << k;
        if (changed.Find(k) && changed.Find(k) != &v) ++separated;
      }
      EXPECT_GE(separated, 1u);
      EXPECT_LE(separated, static_cast<std::size_t>(Tracked::copies));
      // Erasing may also separate the nodes it rotates beside the path.
      EXPECT_LE(Tracked::copies, (kind == Kind::kErase ? 3 : 1) * original.Height());
      // The path is now private: changing the same key again copies nothing and keeps the address.
      Tracked::copies = 0;
      const Tracked* found = changed.Find(key);
      EXPECT_EQ(changed.Modify(key), found);
      EXPECT_EQ(Tracked::copies, 0);
    }
  }
}

TEST(PersistentMap, BuilderMakesPerfectlyBalancedTreesEqualToInsertedOnes) {
  for (const int n : {0, 1, 2, 3, 7, 8, 1000}) {
    Ref r;
    for (int i = 0; i < n; ++i) r[i * 10] = i;
    const Map m = FromRef(r);
    EXPECT_TRUE(Same(m, r)) << n;
    int minimal = 0;
    while ((1 << minimal) - 1 < n) ++minimal;
    EXPECT_EQ(m.Height(), minimal) << n;
    Map inserted;  // another shape, same contents
    for (auto it = r.rbegin(); it != r.rend(); ++it) inserted.insert_or_assign(it->first, Tracked(it->second));
    EXPECT_TRUE(m == inserted) << n;
    EXPECT_FALSE(m.SharesRootWith(inserted));
  }
}

TEST(PersistentMap, BuilderRefusesKeysThatAreNotIncreasing) {
  const struct {
    std::vector<int> keys;
    int refused;  // index of the first refused key, -1 when all are accepted
  } cases[] = {{{1, 2, 2, 5}, 2}, {{1, 3, 2}, 2}, {{5, 1}, 1}, {{4, 4}, 1}, {{-3, 0, 9}, -1}, {{}, -1}};
  for (const auto& [keys, refusedAt] : cases) {
    Map::Builder b;
    int refused = -1;
    for (int i = 0; i < static_cast<int>(keys.size()) && refused < 0; ++i) {
      if (!b.Append(keys[i], Tracked(i))) refused = i;
    }
    EXPECT_EQ(refused, refusedAt);
    const std::size_t accepted = refused < 0 ? keys.size() : static_cast<std::size_t>(refused);
    ASSERT_EQ(b.Count(), accepted);
    EXPECT_EQ(b.Last() ? *b.Last() : -99, accepted ? keys[accepted - 1] : -99);
    Ref r;  // values are the indexes
    for (std::size_t i = 0; i < accepted; ++i) r[keys[i]] = static_cast<int>(i);
    EXPECT_TRUE(Same(std::move(b).Build(), r));
    EXPECT_EQ(b.Count(), 0u);
  }
}

struct CaseLess {
  bool operator()(const std::string& a, const std::string& b) const {
    return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(), [](unsigned char x, unsigned char y) {
      return std::tolower(x) < std::tolower(y);
    });
  }
};

// An order unlike operator< ("Delta" after "beta"), and equivalent keys that are not equal.
TEST(PersistentMap, CustomOrderAndEquivalentKeys) {
  cow_PersistentMap<std::string, int, CaseLess> m;
  std::map<std::string, int, CaseLess> r;
  const std::pair<const char*, int> puts[] = {{"beta", 1}, {"Alpha", 2}, {"gamma", 3}, {"ALPHA", 4}, {"Beta", 5}, {"Delta", 6}};
  for (const auto& [k, v] : puts) EXPECT_EQ(m.insert_or_assign(k, v).second, r.insert_or_assign(k, v).second) << k;
  EXPECT_EQ(m.erase("GAMMA"), r.erase("GAMMA"));
  EXPECT_TRUE(std::equal(m.begin(), m.end(), r.begin(), r.end()));  // keeps the first spelling, like std::map
  EXPECT_EQ(std::next(m.find("ALPHA"))->first, "beta");
  EXPECT_TRUE(m.Balanced());

  cow_PersistentMap<std::string, int, CaseLess>::Builder b;
  EXPECT_TRUE(b.Append("a", 1) && !b.Append("A", 2) && b.Append("B", 3));
  const auto built = std::move(b).Build();
  EXPECT_TRUE(built.size() == 2 && built.begin()->first == "a" && built.find("b")->second == 3);
}

TEST(PersistentMap, ValuesAreNeitherLeakedNorReleasedTwice) {
  ASSERT_EQ(Tracked::live, 0);
  {
    Map m;
    Tracked::copies = 0;
    for (int k = 0; k < 100; ++k) m.insert_or_assign(k, Tracked(k));
    for (int k = 0; k < 100; k += 3) m.Modify(k)->v = -k;
    for (int k = 0; k < 100; k += 4) m.erase(k);
    EXPECT_EQ(Tracked::copies, 0);  // a map nobody shares changes in place
    EXPECT_EQ(Tracked::live, 75);
    Map c = m, d = m;
    EXPECT_EQ(Tracked::live, 75);
    c.Modify(50)->v = 1;
    EXPECT_EQ(Tracked::live, 75 + Tracked::copies);
    for (int k = 1; k < 100; k += 2) c.erase(k);
    m.clear();
    EXPECT_EQ(m.begin(), m.end());
    const Map& self = c;
    c = self;
    d = std::move(c);
    EXPECT_TRUE(c.empty());
    EXPECT_EQ(d.size(), 25u);
    EXPECT_EQ(Tracked::live, 25);
    Map::Builder abandoned;  // must release what it holds
    EXPECT_TRUE(abandoned.Append(1, Tracked(1)) && abandoned.Append(2, Tracked(2)));
  }
  EXPECT_EQ(Tracked::live, 0);
}

TEST(PersistentMap, ThrowingCopyLeavesBothVersionsUnchanged) {
  std::mt19937 rng(7);
  Ref base;
  Map shuffled;  // random insertion order, so that nodes lean both ways
  for (int i = 0; i < 60; ++i) {
    const int k = static_cast<int>(rng() % 120) * 2;
    base[k] = k;
    shuffled.insert_or_assign(k, Tracked(k));
  }
  std::vector<std::pair<Kind, int>> ops = {{Kind::kPut, 77}, {Kind::kPut, base.begin()->first},
                                           {Kind::kModify, base.rbegin()->first}};
  for (const auto& [k, v] : base) ops.emplace_back(Kind::kErase, k);
  for (const auto& [kind, key] : ops) {
    for (int n = 0;; ++n) {
      SCOPED_TRACE(testing::Message() << "change " << static_cast<int>(kind) << " of " << key << " throwing at copy " << n);
      const Map kept = shuffled;
      Map m = kept;
      Ref expected = base;
      Tracked::throwAfter = n;
      bool threw = false;
      try { Apply(kind, key, m, expected); } catch (const std::runtime_error&) { threw = true; }
      Tracked::throwAfter = -1;
      ASSERT_TRUE(Same(kept, base));
      ASSERT_TRUE(Same(m, threw ? base : expected));
      if (!threw) break;
    }
  }
}

// A copy changed at k keys differs from its original exactly there, and the walk that finds the
// differences reports no more than the paths the changes copied: about k log N keys, not N.
TEST(PersistentMap, DiffFromAnOlderCopyFindsExactlyTheChangesAlongTheirPaths) {
  std::mt19937 rng(1126);
  Ref base;
  for (int i = 0; i < 100000; ++i) base[2 * i] = i;
  const Map older = FromRef(base);
  for (int k : {0, 1, 2, 10, 100, 1000}) {
    SCOPED_TRACE("k = " + std::to_string(k));
    Map now = older;
    Ref r = base;
    for (int j = 0; j < k; ++j) {
      const int key = static_cast<int>(rng() % 200002);
      unsigned op = rng() % 3;
      if (op == 1 && !r.count(key)) op = 0;  // a key to modify must be there
      if (op == 0) now.insert_or_assign(key, Tracked(-j)), r[key] = -j;
      else if (op == 1) now.Modify(key)->v = r[key] = 1000000 + j;
      else now.erase(key), r.erase(key);
    }
    ASSERT_TRUE(Same(now, r));
    std::map<int, std::pair<int, int>> expected;  // key: old value or -1e9 when absent, new likewise
    constexpr int kAbsent = -1000000000;
    for (const auto& [key, v] : base)
      if (auto it = r.find(key); it == r.end() || it->second != v) expected[key] = {v, it == r.end() ? kAbsent : it->second};
    for (const auto& [key, v] : r)
      if (!base.count(key)) expected[key] = {kAbsent, v};
    std::map<int, std::pair<int, int>> found;
    std::size_t reported = 0;
    int last = -1;
    bool ordered = true;
    cow_DiffFrom(older, now, [&](int key, const Tracked* was, const Tracked* is) {
      ++reported;
      ordered = ordered && key > last;
      last = key;
      ASSERT_TRUE(was || is);
      if (!was || !is || was->v != is->v) found[key] = {was ? was->v : kAbsent, is ? is->v : kAbsent};
    });
    EXPECT_TRUE(ordered);
    EXPECT_EQ(found, expected);
    // Each change copies one path (and a rotation's few nodes beside it).
    EXPECT_LE(reported, static_cast<std::size_t>(k) * 3 * static_cast<std::size_t>(older.Height()) + 1);
  }
  // Against an unrelated map of the same contents every key is reported, each as unchanged.
  const Map copyByValue = FromRef(base);
  std::size_t differing = 0, reported = 0;
  cow_DiffFrom(older, copyByValue, [&](int, const Tracked* was, const Tracked* is) {
    ++reported;
    differing += !was || !is || was->v != is->v;
  });
  EXPECT_EQ(differing, 0u);
  EXPECT_EQ(reported, base.size());
  // From and to an empty map: everything added, everything removed.
  std::size_t added = 0, removed = 0;
  cow_DiffFrom(Map(), older, [&](int, const Tracked* was, const Tracked*) { added += was == nullptr; });
  cow_DiffFrom(older, Map(), [&](int, const Tracked*, const Tracked* is) { removed += is == nullptr; });
  EXPECT_EQ(added, base.size());
  EXPECT_EQ(removed, base.size());
}

}  // namespace persistent_map_test
