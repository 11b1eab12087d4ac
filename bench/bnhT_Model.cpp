#include "bench/bnhT_Model.h"

#include <fcntl.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <memory>

#include "bench/bnhT_Table.h"
#include "kad/kadC_ACWrapper.h"
#include "platform/model/ddr_Model.h"

namespace bnhT {
namespace {

std::string BenchDir() {
  const char* env = std::getenv("QMX_BENCH_DIR");
  std::filesystem::path dir =
      std::filesystem::path(env ? env : std::filesystem::temp_directory_path().string()) /
      ("bench_dbf-" + std::to_string(::getpid()));
  std::filesystem::create_directories(dir);
  return dir.string();
}

// Removed, with the files in it, when the program ends.
struct BenchFiles {
  std::string dir = BenchDir();
  ~BenchFiles() {
    std::error_code ec;
    std::filesystem::remove_all(dir, ec);
  }
};

}  // namespace

const std::string& Dir() {
  static const BenchFiles files;
  return files.dir;
}

std::int64_t Tables(std::int64_t n) { return n / 10; }
std::int64_t Controls(std::int64_t n) { return n - Tables(n); }

std::unique_ptr<ddr_Database> BuildDatabase(std::int64_t n) {
  bnhT_Start();
  auto slot = std::make_unique<ddr_Database>();
  ddr_Model& m = slot->CreateModel("Model-1");
  auto& controls = dynamic_cast<kadC_AdptMeshCtrlCont&>(*m.ModifyRepository("adaptiveMeshControls"));
  for (std::int64_t i = 0; i < Controls(n); ++i) {
    kadC_AdptMeshCtrl c;
    c.SetInitialFeatureAngle(static_cast<double>(i % 180));
    c.SetTransitionFeatureAngle(static_cast<double>((i * 7) % 180) + 0.25);
    c.SetLaplacianSmoothingWeight(static_cast<double>(i) * 1e-6);
    c.SetSmoothingAlgorithm(static_cast<kadC_AdptMeshCtrl::SmoothingAlgorithmEnm>(i % 3));
    c.SetAdvection(static_cast<kadC_AdptMeshCtrl::AdvectionEnm>(i % 2));
    controls.Insert("C-" + std::to_string(i), c);
  }
  auto& tables = dynamic_cast<bnhT_TableCont&>(*m.ModifyRepository("benchTables"));
  for (std::int64_t i = 0; i < Tables(n); ++i) {
    bnhT_Table t;
    t.description = "table " + std::to_string(i);
    t.table = cow_2DArray<double>(16, 2);
    for (std::size_t r = 0; r < 16; ++r) {
      t.table(r, 0) = static_cast<double>(r) * 0.1;
      t.table(r, 1) = static_cast<double>(i + r) * 1.5e3;
    }
    tables.Insert("T-" + std::to_string(i), t);
  }
  return slot;
}

const ddr_Database& Database(std::int64_t n) {
  static std::map<std::int64_t, std::unique_ptr<ddr_Database>> cache;
  auto& slot = cache[n];
  if (!slot) slot = BuildDatabase(n);
  return *slot;
}

void Check(int rc, sqlite3* db) {
  if (rc != SQLITE_OK && rc != SQLITE_DONE && rc != SQLITE_ROW) {
    std::fprintf(stderr, "sqlite: %s\n", sqlite3_errmsg(db));
    std::abort();
  }
}

void Exec(sqlite3* db, const std::string& sql) { Check(sqlite3_exec(db, sql.c_str(), nullptr, nullptr, nullptr), db); }

void HexUid(const cls_Uid& uid, char* out) {
  static const char* kHex = "0123456789abcdef";
  std::uint64_t hi = uid.High(), lo = uid.Low();
  for (int i = 15; i >= 0; --i, hi >>= 4) out[i] = kHex[hi & 0xf];
  for (int i = 31; i >= 16; --i, lo >>= 4) out[i] = kHex[lo & 0xf];
}

void FsyncFile(const std::string& path) {
  int fd = ::open(path.c_str(), O_RDONLY);
  ::fsync(fd);
  ::close(fd);
}
}  // namespace bnhT
