#include "fuzz/fuzz_Common.h"

#include <unistd.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <fstream>

#include "dbfile/dbf_File.h"
#include "dbfile/dbf_Vfs.h"
#include "platform/model/ddr_Database.h"

namespace fs = std::filesystem;

const std::string& fuzz_Scratch() {
  // On the heap and never destroyed: the removal at exit runs after the statics are gone.
  static const std::string* const dir = [] {
    // Memory-backed when there is such a folder: every save syncs, which a disk makes slow.
    std::error_code ec;
    const fs::path base = fs::is_directory("/dev/shm", ec) ? fs::path("/dev/shm") : fs::temp_directory_path();
    fs::path p = base / ("qmx-fuzz-" + std::to_string(::getpid()));
    fs::create_directories(p);
    auto* made = new std::string(p.string());
    std::atexit([] {
      std::error_code ignored;
      fs::remove_all(*dir, ignored);
    });
    return made;
  }();
  return *dir;
}

std::string fuzz_ScratchFile(std::string_view name) {
  const std::string path = fuzz_Scratch() + "/" + std::string(name);
  std::error_code ec;
  for (const char* suffix : {"", "-journal", "-wal", "-shm"}) fs::remove(path + suffix, ec);
  return path;
}

void fuzz_WriteFile(const std::string& path, std::string_view bytes) {
  std::ofstream out(path, std::ios::binary | std::ios::trunc);
  out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  if (!out) fuzz_Fail("cannot write the scratch file ", path);
}

void fuzz_FixChecksums(std::string& bytes) {
  if (bytes.size() < 100) return;
  const auto* b = reinterpret_cast<const unsigned char*>(bytes.data());
  std::size_t pageSize = (std::size_t{b[16]} << 8) | b[17];
  if (pageSize == 1) pageSize = 65536;
  if (pageSize < 512 || pageSize > 65536 || (pageSize & (pageSize - 1)) != 0) return;
  const std::size_t body = pageSize - dbf_kChecksumBytes;
  for (std::size_t at = 0; at + pageSize <= bytes.size(); at += pageSize) {
    auto* page = reinterpret_cast<unsigned char*>(bytes.data() + at);
    std::uint64_t sum = dbf_PageChecksum(page, body, static_cast<std::int64_t>(at / pageSize + 1));
    for (int i = 0; i < dbf_kChecksumBytes; ++i) page[body + static_cast<std::size_t>(i)] = static_cast<unsigned char>(sum >> (8 * i));
  }
}

void fuzz_Fail(std::string_view what, std::string_view detail) {
  std::fprintf(stderr, "FUZZ FINDING: %.*s%.*s\n", static_cast<int>(what.size()), what.data(),
               static_cast<int>(detail.size()), detail.data());
  std::abort();
}

void fuzz_RequireRoundTrip(const ddr_Database& db, std::string_view name) {
  const std::string path = fuzz_ScratchFile(name);
  try {
    // Small pages and no journal: the file is the same rows, written with less work.
    dbf_SaveOptions options;
    options.journal = dbf_Journal::Off;
    options.pageSize = 1024;
    dbf_Save(db, path, options);
  } catch (const std::exception& e) {
    fuzz_Fail("a database in memory does not save: ", e.what());
  }
  ddr_Database back;
  try {
    back = dbf_Open(path);
  } catch (const std::exception& e) {
    fuzz_Fail("a saved database does not open again: ", e.what());
  }
  if (!(back == db)) fuzz_Fail("a saved database reads back unequal to itself");
}
