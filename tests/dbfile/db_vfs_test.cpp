// The page checksums of the database file: what they cover and what the layer refuses to write.
#include <gtest/gtest.h>
#include <sqlite3.h>

#include <algorithm>
#include <set>

#include "dbfile/dbf_Vfs.h"
#include "tests/dbfile/dbtT_Files.h"
#include "tests/support/qmx_test.h"

namespace {

TEST(DbVfs, ChecksumsSeeEveryBitAndThePageNumber) {
  std::vector<unsigned char> page(4096 - dbf_kChecksumBytes);
  for (std::size_t i = 0; i < page.size(); ++i) page[i] = static_cast<unsigned char>(i * 7);
  const std::uint64_t base = dbf_PageChecksum(page.data(), page.size(), 3);
  EXPECT_EQ(dbf_PageChecksum(page.data(), page.size(), 3), base);
  std::set<std::uint64_t> seen{base};
  EXPECT_TRUE(seen.insert(dbf_PageChecksum(page.data(), page.size(), 4)).second);  // the same bytes elsewhere
  for (std::size_t at : {std::size_t(0), std::size_t(1), std::size_t(31), std::size_t(32), page.size() / 2,
                         page.size() - 1}) {
    for (int bit = 0; bit < 8; bit += 7) {
      page[at] ^= static_cast<unsigned char>(1 << bit);
      EXPECT_TRUE(seen.insert(dbf_PageChecksum(page.data(), page.size(), 3)).second) << at << "/" << bit;
      page[at] ^= static_cast<unsigned char>(1 << bit);
    }
  }
  // Two swapped words change it too.
  std::swap(page[0], page[8]);
  EXPECT_NE(dbf_PageChecksum(page.data(), page.size(), 3), base);
}

TEST(DbVfs, AFileWithoutRoomForTheChecksumsIsNotWritten) {
  const std::string dir = qmx_TempDir("db-vfs");
  const std::string f = dir + "/plain.odb";
  sqlite3* db = nullptr;
  ASSERT_EQ(sqlite3_open_v2(f.c_str(), &db, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, dbf_ChecksumVfs()), SQLITE_OK);
  sqlite3_extended_result_codes(db, 1);
  EXPECT_EQ(sqlite3_exec(db, "CREATE TABLE t (x); INSERT INTO t VALUES (1);", nullptr, nullptr, nullptr),
            SQLITE_IOERR_WRITE);
  sqlite3_close(db);

  // With the bytes reserved, pages carry their checksums and a changed page fails its read.
  const std::string g = dir + "/checked.odb";
  ASSERT_EQ(sqlite3_open_v2(g.c_str(), &db, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, dbf_ChecksumVfs()), SQLITE_OK);
  int reserve = dbf_kChecksumBytes;
  sqlite3_file_control(db, "main", SQLITE_FCNTL_RESERVE_BYTES, &reserve);
  ASSERT_EQ(sqlite3_exec(db, "PRAGMA page_size = 1024; CREATE TABLE t (x); INSERT INTO t VALUES ('abcdef');", nullptr,
                         nullptr, nullptr),
            SQLITE_OK);
  sqlite3_close(db);
  auto bytes = dbtT_ReadBytes(g);
  ASSERT_EQ(bytes.size(), 2048u);
  EXPECT_EQ(bytes[20], dbf_kChecksumBytes);
  auto at = std::search(bytes.begin(), bytes.end(), std::begin("abcdef"), std::end("abcdef") - 1);
  ASSERT_NE(at, bytes.end());
  *at = 'A';
  dbtT_WriteBytes(g, bytes);
  ASSERT_EQ(sqlite3_open_v2(g.c_str(), &db, SQLITE_OPEN_READONLY, dbf_ChecksumVfs()), SQLITE_OK);
  sqlite3_extended_result_codes(db, 1);
  EXPECT_EQ(sqlite3_exec(db, "SELECT * FROM t", nullptr, nullptr, nullptr), SQLITE_IOERR_DATA);
  EXPECT_EQ(dbf_ChecksumFailedPage(db), 2);
  sqlite3_close(db);
  // The plain SQLite layer reads the same changed file without noticing.
  ASSERT_EQ(sqlite3_open_v2(g.c_str(), &db, SQLITE_OPEN_READONLY, nullptr), SQLITE_OK);
  EXPECT_EQ(sqlite3_exec(db, "SELECT * FROM t", nullptr, nullptr, nullptr), SQLITE_OK);
  EXPECT_EQ(dbf_ChecksumFailedPage(db), 0);
  sqlite3_close(db);
}

}  // namespace
