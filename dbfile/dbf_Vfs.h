#pragma once
// Page checksums for the model database file. SQLite itself notices a damaged structure but not
// a changed value, so every page of a model database keeps an 8-byte checksum of its contents
// and its page number in the reserved bytes at its end (the bytes SQLite sets aside for such
// extensions and never touches). A VFS layered over the platform's default one writes the
// checksum with each page and verifies it on each page read; a mismatch fails the read with
// SQLITE_IOERR_DATA.
// Other files (journals) pass through unchanged. A standard sqlite3 shell reads such files
// normally; writing them with it leaves stale checksums, which this library then refuses as
// damage.
#include <sqlite3.h>

#include <cstddef>
#include <cstdint>

inline constexpr int dbf_kChecksumBytes = 8;

// The name of the checksumming VFS, registered (not as the default) on first use.
const char* dbf_ChecksumVfs();

// Has the VFS mark checked[n - 1] for each page n (up to `pages`) of the connection's main file
// whose checksum a read verified, so that a reader can check the pages SQLite never read
// without reading the others twice. The array must outlive the connection's reads. False when
// that file is not one of this VFS.
bool dbf_NoteCheckedPages(sqlite3* db, unsigned char* checked, std::int64_t pages);

// The page whose checksum failed last on the connection's main file, or 0.
std::int64_t dbf_ChecksumFailedPage(sqlite3* db);

// The checksum of the first `size` bytes of page `pageNumber` (1-based).
std::uint64_t dbf_PageChecksum(const unsigned char* page, std::size_t size, std::int64_t pageNumber);
// Whether a whole page as stored (pageSize bytes, its checksum in the last 8) holds the checksum
// of its bytes and number.
bool dbf_PageIntact(const unsigned char* page, std::size_t pageSize, std::int64_t pageNumber);
