// The fuzz targets' SQLite memory: SQLite runs on it as on its own, and the sanitizer still
// reports a read past a block's end, after its free, or past what a shrink left.
#include <gtest/gtest.h>
#include <sqlite3.h>

#include <algorithm>
#include <cstring>
#include <string>

#include "fuzz/fuzz_SqliteMemory.h"

namespace {

const bool kInstalled = (fuzz_UseOwnSqliteMemory(), true);

char Read(const void* p, int at) { return static_cast<const volatile char*>(p)[at]; }

TEST(FuzzSqliteMemory, SqliteRunsOnIt) {
  ASSERT_TRUE(kInstalled);
  sqlite3* db = nullptr;
  ASSERT_EQ(sqlite3_open(":memory:", &db), SQLITE_OK);
  ASSERT_EQ(sqlite3_exec(db,
                         "CREATE TABLE t (i INTEGER, s TEXT);"
                         "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 5000)"
                         " INSERT INTO t SELECT i, printf('%0*d', i % 300, i) FROM n;",
                         nullptr, nullptr, nullptr),
            SQLITE_OK)
      << sqlite3_errmsg(db);
  sqlite3_stmt* s = nullptr;
  ASSERT_EQ(sqlite3_prepare_v2(db, "SELECT sum(i), sum(length(s)) FROM t", -1, &s, nullptr), SQLITE_OK);
  ASSERT_EQ(sqlite3_step(s), SQLITE_ROW);
  EXPECT_EQ(sqlite3_column_int64(s, 0), 5000 * 5001 / 2);
  long long lengths = 0;
  for (int i = 1; i <= 5000; ++i) lengths += std::max<long long>(i % 300, static_cast<long long>(std::to_string(i).size()));
  EXPECT_EQ(sqlite3_column_int64(s, 1), lengths);
  sqlite3_finalize(s);
  sqlite3_close(db);
}

TEST(FuzzSqliteMemory, BlocksKeepTheirBytesAndSize) {
  for (int n : {1, 8, 17, 100, 4096, 65519, 65520, 100000}) {
    SCOPED_TRACE(n);
    auto* p = static_cast<char*>(sqlite3_malloc(n));
    ASSERT_NE(p, nullptr);
    EXPECT_GE(sqlite3_msize(p), static_cast<sqlite3_uint64>(n));
    std::memset(p, 'x', static_cast<std::size_t>(n));
    p = static_cast<char*>(sqlite3_realloc(p, 2 * n));
    ASSERT_NE(p, nullptr);
    EXPECT_EQ(p[0], 'x');
    EXPECT_EQ(p[n - 1], 'x');
    p = static_cast<char*>(sqlite3_realloc(p, n / 2 + 1));
    EXPECT_EQ(p[n / 2], 'x');
    sqlite3_free(p);
  }
}

using FuzzSqliteMemoryDeathTest = ::testing::Test;

TEST_F(FuzzSqliteMemoryDeathTest, ReadsOutsideALiveBlockAreReported) {
  auto* p = static_cast<char*>(sqlite3_malloc(40));
  std::memset(p, 1, 40);
  EXPECT_EQ(Read(p, 39), 1);
  EXPECT_DEATH(Read(p, 40), "use-after-poison");
  EXPECT_DEATH(Read(p, -1), "use-after-poison");
  p = static_cast<char*>(sqlite3_realloc(p, 9));  // shrunk in place to 16 usable bytes
  EXPECT_DEATH(Read(p, 20), "use-after-poison");
  sqlite3_free(p);
}

TEST_F(FuzzSqliteMemoryDeathTest, AFreedBlockIsReportedUntilItIsReused) {
  auto* p = static_cast<char*>(sqlite3_malloc(100));
  std::memset(p, 1, 100);
  sqlite3_free(p);
  EXPECT_DEATH(Read(p, 0), "use-after-poison");
  // Blocks freed after it do not bring it back at once: it waits its turn in the queue.
  for (int i = 0; i < 1000; ++i) sqlite3_free(sqlite3_malloc(100));
  EXPECT_DEATH(Read(p, 50), "use-after-poison");
}

}  // namespace
