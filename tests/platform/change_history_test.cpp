// The per-thread journal of changes lives as long as its thread: it keeps its newest entries and
// drops the older ones, so that a long run of changes does not grow the heap without end.
#include <gtest/gtest.h>
#include <malloc.h>

#include <string>

#include "kad/kadC_AdptMeshCtrlCont.h"
#include "platform/model/omu_ChangeHistory.h"

namespace {

constexpr std::size_t kCap = omu_ChangeHistory::kCapacity;

std::size_t ChangeHistoryHeapInUse() { return mallinfo2().uordblks; }

void RecordKeys(std::size_t from, std::size_t to) {
  for (std::size_t i = from; i < to; ++i)
    omu_ChangeHistory::Instance().Record("container", "Modify", cow_String(std::to_string(i)));
}

TEST(ChangeHistory, KeepsTheNewestEntriesAndCountsEveryOne) {
  omu_ChangeHistory& h = omu_ChangeHistory::Instance();
  h.Clear();
  struct Case {
    std::size_t recorded;
    std::size_t kept;
  };
  // Up to the capacity everything is kept; past it the older half goes at once.
  const Case cases[] = {{1, 1}, {kCap, kCap}, {kCap + 1, kCap / 2 + 1}, {3 * kCap + 7, kCap / 2 + 7}};
  for (const Case& c : cases) {
    SCOPED_TRACE(c.recorded);
    h.Clear();
    RecordKeys(0, c.recorded);
    EXPECT_EQ(h.Size(), c.recorded);
    ASSERT_EQ(h.Entries().size(), c.kept);
    EXPECT_EQ(h.Entries().front().key, std::to_string(c.recorded - c.kept));
    EXPECT_EQ(h.Entries().back().key, std::to_string(c.recorded - 1));
  }
  h.Clear();
}

// A mark taken before a command is cut back to whether the entries after it are kept or dropped.
TEST(ChangeHistory, TruncateCutsBackToAMarkKeptOrDropped) {
  omu_ChangeHistory& h = omu_ChangeHistory::Instance();
  struct Case {
    std::size_t mark, recorded;
    std::size_t kept;  // entries after the cut
  };
  const Case cases[] = {
      {10, 20, 10},                        // within the kept entries
      {kCap - 2, kCap + 40, kCap / 2 - 2},  // after the drop, the mark among the kept
      {5, 2 * kCap + 1, 0},                 // the mark among the dropped: nothing kept is before it
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.recorded);
    h.Clear();
    RecordKeys(0, c.recorded);
    h.Truncate(c.mark);
    EXPECT_EQ(h.Size(), c.mark);
    ASSERT_EQ(h.Entries().size(), c.kept);
    if (c.kept) {
      EXPECT_EQ(h.Entries().back().key, std::to_string(c.mark - 1));
    }
    // What comes next is counted from the mark.
    RecordKeys(c.mark, c.mark + 1);
    EXPECT_EQ(h.Size(), c.mark + 1);
    EXPECT_EQ(h.Entries().back().key, std::to_string(c.mark));
  }
  h.Truncate(h.Size() + 5);  // a mark beyond the end changes nothing
  EXPECT_EQ(h.Entries().size(), 1u);
  h.Clear();
}

// Changes through a repository, by the ten thousand, leave the heap where the first few thousand
// left it (it grew by about 150 bytes per change for the thread's life before).
TEST(ChangeHistory, ALongRunOfChangesDoesNotGrowTheHeap) {
  omu_ChangeHistory::Instance().Clear();
  kadC_AdptMeshCtrlCont repo;
  repo.Insert("C-1", kadC_AdptMeshCtrl());
  auto change = [&](int n) {
    for (int i = 0; i < n; ++i) repo.Get("C-1").SetInitialFeatureAngle(1.0 + i % 7);
  };
  change(static_cast<int>(3 * kCap));  // the journal at its largest, the allocator warmed
  const std::size_t warm = ChangeHistoryHeapInUse();
  const std::size_t size = omu_ChangeHistory::Instance().Size();
  constexpr int kMore = 100000;
  change(kMore);
  EXPECT_EQ(omu_ChangeHistory::Instance().Size(), size + kMore);
  const std::size_t after = ChangeHistoryHeapInUse();
  // Under 10 bytes a change, for what the allocator keeps around; unbounded, the journal kept about
  // 150 bytes a change.
  EXPECT_LT(after > warm ? after - warm : 0, std::size_t{1} << 20) << "grew from " << warm << " to " << after;
  omu_ChangeHistory::Instance().Clear();
}

}  // namespace
