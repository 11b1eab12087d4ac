// Saving and opening a model database of N objects (adaptive mesh controls and, one in ten,
// tables of doubles), each measured against raw SQLite writing and reading the same rows with
// prepared statements in one transaction, in the same iteration (ours, raw, raw, ours). Counters:
//   objects_per_s      this library (dbf_Save / dbf_Open)
//   raw_objects_per_s  the raw baseline
//   ratio_to_raw       this library's time over the baseline's (the target is at most 1.2)
// BM_Validate checks every object of the model through the model's walk (what "validate" does)
// against a bare loop calling the same checks straight on the typed elements (counter "ratio").
// BM_UpgradeOpen opens a file whose control rows are one class version old (upgraded through the
// converter as they are read) against an open of the same file at today's version ("ratio").
// BM_FirstChangeAfterCopy copies the database (shared, O(1)) and changes one control: the first
// change separates the model, the control repository (its persistent tree stays shared) and the
// tree's path to the control (O(log N) nodes); the counter "ratio" is its cost over a second change.
// The program ends with one table of the medians of every ratio.
// BM_OpenRowsOnly loads the same rows without building objects, to tell the file's share of an
// open from the classes'. BM_SaveJournal compares the journal modes and page sizes of a whole
// save into a new file.
// Files go to $QMX_BENCH_DIR, or the system's temporary directory.
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <sqlite3.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "bench/bnhT_Table.h"
#include "command/cmd_Check.h"
#include "dbfile/dbf_Format.h"
#include "dbfile/dbf_Vfs.h"
#include "kad/kadC_ACWrapper.h"
#include "platform/model/ddr_Model.h"
#include "platform/persist/cls_ClassRegistrar.h"
#include "platform/persist/dbc_Converter.h"
#include "dbfile/dbf_File.h"
#include "dbfile/dbf_Reader.h"

namespace {

using Clock = std::chrono::steady_clock;

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

const std::string& Dir() {
  static const BenchFiles files;
  return files.dir;
}

std::int64_t Tables(std::int64_t n) { return n / 10; }
std::int64_t Controls(std::int64_t n) { return n - Tables(n); }

// One model: controls "C-i" with varied values and tables "T-i" of 16 rows by 2 columns.
const ddr_Database& Database(std::int64_t n) {
  static std::map<std::int64_t, std::unique_ptr<ddr_Database>> cache;
  auto& slot = cache[n];
  if (slot) return *slot;
  bnhT_Start();
  slot = std::make_unique<ddr_Database>();
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

void JsonKey(std::string& out, const cow_String& key) {
  out += '"';
  out.append(key.c_str(), key.size());
  out += '"';
}

void FsyncFile(const std::string& path) {
  int fd = ::open(path.c_str(), O_RDONLY);
  ::fsync(fd);
  ::close(fd);
}

// --- the raw baseline ---------------------------------------------------------------------------

// A cell of a stored row, as SQLite gave it.
struct RawCell {
  int type = SQLITE_NULL;
  std::int64_t integer = 0;
  double number = 0;
  std::string bytes;  // text or blob
};

// The file's other object rows: the model, its empty repositories and the repositories' wrappers,
// each class in a table of its own. The baseline writes and reads them too, from a copy taken of a
// saved file before anything is measured, so that both sides store the same rows in the same
// tables; only the file's own tables (catalog, fields, meta, roots) are this library's alone.
struct OtherTable {
  std::string name, create;
  int columns = 0;
  std::vector<std::vector<RawCell>> rows;
};

void Bind(sqlite3_stmt* st, int i, const RawCell& c) {
  switch (c.type) {
    case SQLITE_INTEGER: sqlite3_bind_int64(st, i, c.integer); break;
    case SQLITE_FLOAT: sqlite3_bind_double(st, i, c.number); break;
    case SQLITE_TEXT: sqlite3_bind_text(st, i, c.bytes.data(), static_cast<int>(c.bytes.size()), SQLITE_STATIC); break;
    case SQLITE_BLOB: sqlite3_bind_blob(st, i, c.bytes.data(), static_cast<int>(c.bytes.size()), SQLITE_STATIC); break;
    default: sqlite3_bind_null(st, i);
  }
}

void ReadCell(sqlite3_stmt* st, int i, RawCell& c) {
  c.type = sqlite3_column_type(st, i);
  switch (c.type) {
    case SQLITE_INTEGER: c.integer = sqlite3_column_int64(st, i); break;
    case SQLITE_FLOAT: c.number = sqlite3_column_double(st, i); break;
    case SQLITE_TEXT:
    case SQLITE_BLOB: {
      const void* p = c.type == SQLITE_TEXT ? static_cast<const void*>(sqlite3_column_text(st, i)) : sqlite3_column_blob(st, i);
      c.bytes.assign(static_cast<const char*>(p), static_cast<std::size_t>(sqlite3_column_bytes(st, i)));
      break;
    }
    default: break;
  }
}

// The object tables of a file saved from `db`, except the two classes and two repositories the
// baseline writes from the objects themselves.
const std::vector<OtherTable>& OtherTables(std::int64_t n) {
  static std::map<std::int64_t, std::vector<OtherTable>> cache;
  auto [it, fresh] = cache.try_emplace(n);
  if (!fresh) return it->second;
  const std::string path = Dir() + "/others-" + std::to_string(n) + ".odb";
  dbf_Save(Database(n), path);
  sqlite3* s = nullptr;
  Check(sqlite3_open_v2(path.c_str(), &s, SQLITE_OPEN_READONLY, nullptr), s);
  sqlite3_stmt* list;
  Check(sqlite3_prepare_v2(s,
                           "SELECT name, sql FROM sqlite_master WHERE type = 'table' AND name NOT IN ('dbf_Meta',"
                           " 'dbf_Catalog', 'dbf_Fields', 'dbf_Roots', 'kadC_AdptMeshCtrl', 'kadC_AdptMeshCtrlCont',"
                           " 'bnhT_Table', 'bnhT_TableCont') ORDER BY rootpage",
                           -1, &list, nullptr),
        s);
  while (sqlite3_step(list) == SQLITE_ROW) {
    OtherTable t;
    t.name = reinterpret_cast<const char*>(sqlite3_column_text(list, 0));
    t.create = reinterpret_cast<const char*>(sqlite3_column_text(list, 1));
    sqlite3_stmt* rows;
    Check(sqlite3_prepare_v2(s, ("SELECT * FROM \"" + t.name + "\" ORDER BY OID").c_str(), -1, &rows, nullptr), s);
    t.columns = sqlite3_column_count(rows);
    while (sqlite3_step(rows) == SQLITE_ROW) {
      auto& row = t.rows.emplace_back(static_cast<std::size_t>(t.columns));
      for (int i = 0; i < t.columns; ++i) ReadCell(rows, i, row[static_cast<std::size_t>(i)]);
    }
    sqlite3_finalize(rows);
    it->second.push_back(std::move(t));
  }
  sqlite3_finalize(list);
  sqlite3_close(s);
  std::filesystem::remove(path);
  return it->second;
}

void RawSaveOthers(sqlite3* s, const std::vector<OtherTable>& others) {
  for (const OtherTable& t : others) {
    Exec(s, t.create);
    std::string sql = "INSERT INTO \"" + t.name + "\" VALUES (?";
    for (int i = 1; i < t.columns; ++i) sql += ",?";
    sql += ")";
    sqlite3_stmt* st;
    Check(sqlite3_prepare_v2(s, sql.c_str(), -1, &st, nullptr), s);
    for (const auto& row : t.rows) {
      for (int i = 0; i < t.columns; ++i) Bind(st, i + 1, row[static_cast<std::size_t>(i)]);
      Check(sqlite3_step(st), s);
      sqlite3_reset(st);
    }
    sqlite3_finalize(st);
  }
}

// The same element rows and container rows, bound straight from the objects' getters.
void RawSave(const ddr_Database& db, const std::vector<OtherTable>& others, const std::string& path, int pageSize) {
  std::filesystem::remove(path);
  sqlite3* s = nullptr;
  Check(sqlite3_open_v2(path.c_str(), &s, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_NOMUTEX, nullptr), s);
  Exec(s, "PRAGMA page_size = " + std::to_string(pageSize));
  Exec(s, "PRAGMA synchronous = OFF; PRAGMA locking_mode = EXCLUSIVE; PRAGMA cache_size = -65536; BEGIN");
  Exec(s,
       "CREATE TABLE ctrl (OID INTEGER PRIMARY KEY, UID TEXT NOT NULL, advection TEXT, smoothingAlgorithm TEXT,"
       " smoothingPriority TEXT, initialFeatureAngle REAL, transitionFeatureAngle REAL, momentumAdvection TEXT,"
       " remeshPredictor TEXT, curvatureRefinement REAL, volumetricSmoothingWeight REAL,"
       " standardVolumetricSmoothingWeight REAL, laplacianSmoothingWeight REAL, equipotentialSmoothingWeight REAL,"
       " meshConstraintAngle REAL, originalConfigurationProjectionWeight REAL)");
  Exec(s, "CREATE TABLE tbl (OID INTEGER PRIMARY KEY, UID TEXT NOT NULL, description TEXT, \"table\" BLOB)");
  Exec(s, "CREATE TABLE cont (OID INTEGER PRIMARY KEY, UID TEXT NOT NULL, keys TEXT, \"values\" TEXT)");
  sqlite3_stmt *ctrl, *tbl, *cont;
  Check(sqlite3_prepare_v2(s, "INSERT INTO ctrl VALUES (?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?)", -1, &ctrl, nullptr), s);
  Check(sqlite3_prepare_v2(s, "INSERT INTO tbl VALUES (?,?,?,?)", -1, &tbl, nullptr), s);
  Check(sqlite3_prepare_v2(s, "INSERT INTO cont VALUES (?,?,?,?)", -1, &cont, nullptr), s);
  const ddr_Model& m = db.GetModels().begin()->second.Get();
  char uid[32];
  auto text = [](sqlite3_stmt* st, int i, const char* t) { sqlite3_bind_text(st, i, t, -1, SQLITE_STATIC); };
  auto insertCont = [&](std::int64_t oid, const std::string& keys, const std::string& values) {
    sqlite3_bind_int64(cont, 1, oid);
    sqlite3_bind_text(cont, 2, uid, 32, SQLITE_STATIC);
    sqlite3_bind_text(cont, 3, keys.data(), static_cast<int>(keys.size()), SQLITE_STATIC);
    sqlite3_bind_text(cont, 4, values.data(), static_cast<int>(values.size()), SQLITE_STATIC);
    Check(sqlite3_step(cont), s);
    sqlite3_reset(cont);
  };
  {
    const auto& controls = dynamic_cast<const kadC_AdptMeshCtrlCont&>(*m.FindRepository("adaptiveMeshControls"));
    std::string keys = "[", values = "[";
    std::int64_t oid = 0;
    for (const auto& [key, h] : controls.Items()) {
      const kadC_AdptMeshCtrl& c = h.Get();
      ++oid;
      HexUid(c.GetUid(), uid);
      sqlite3_bind_int64(ctrl, 1, oid);
      sqlite3_bind_text(ctrl, 2, uid, 32, SQLITE_STATIC);
      text(ctrl, 3, omu_LiteralOf(c.GetAdvection()));
      text(ctrl, 4, omu_LiteralOf(c.GetSmoothingAlgorithm()));
      text(ctrl, 5, omu_LiteralOf(c.GetSmoothingPriority()));
      sqlite3_bind_double(ctrl, 6, c.GetInitialFeatureAngle());
      sqlite3_bind_double(ctrl, 7, c.GetTransitionFeatureAngle());
      text(ctrl, 8, omu_LiteralOf(c.GetMomentumAdvection()));
      text(ctrl, 9, omu_LiteralOf(c.GetRemeshPredictor()));
      sqlite3_bind_double(ctrl, 10, c.GetCurvatureRefinement());
      sqlite3_bind_double(ctrl, 11, c.GetVolumetricSmoothingWeight());
      sqlite3_bind_double(ctrl, 12, c.GetStandardVolumetricSmoothingWeight());
      sqlite3_bind_double(ctrl, 13, c.GetLaplacianSmoothingWeight());
      sqlite3_bind_double(ctrl, 14, c.GetEquipotentialSmoothingWeight());
      sqlite3_bind_double(ctrl, 15, c.GetMeshConstraintAngle());
      sqlite3_bind_double(ctrl, 16, c.GetOriginalConfigurationProjectionWeight());
      Check(sqlite3_step(ctrl), s);
      sqlite3_reset(ctrl);
      if (oid > 1) keys += ',', values += ',';
      JsonKey(keys, key);
      values += "[" + std::to_string(oid) + "," + std::to_string(kadC_AdptMeshCtrl::TypeId()) + "]";
    }
    keys += ']', values += ']';
    HexUid(controls.GetUid(), uid);
    insertCont(1, keys, values);
  }
  {
    const auto& tables = dynamic_cast<const bnhT_TableCont&>(*m.FindRepository("benchTables"));
    std::string keys = "[", values = "[", blob;
    std::int64_t oid = 0;
    for (const auto& [key, h] : tables.Items()) {
      const bnhT_Table& t = h.Get();
      ++oid;
      HexUid(t.GetUid(), uid);
      std::uint32_t dims[2] = {static_cast<std::uint32_t>(t.table.Rows()), static_cast<std::uint32_t>(t.table.Columns())};
      blob.assign(reinterpret_cast<const char*>(dims), 8);
      blob.append(reinterpret_cast<const char*>(t.table.Data()), 8 * t.table.Rows() * t.table.Columns());
      sqlite3_bind_int64(tbl, 1, oid);
      sqlite3_bind_text(tbl, 2, uid, 32, SQLITE_STATIC);
      sqlite3_bind_text(tbl, 3, t.description.c_str(), static_cast<int>(t.description.size()), SQLITE_STATIC);
      sqlite3_bind_blob(tbl, 4, blob.data(), static_cast<int>(blob.size()), SQLITE_STATIC);
      Check(sqlite3_step(tbl), s);
      sqlite3_reset(tbl);
      if (oid > 1) keys += ',', values += ',';
      JsonKey(keys, key);
      values += "[" + std::to_string(oid) + "," + std::to_string(bnhT_Table::TypeId()) + "]";
    }
    keys += ']', values += ']';
    HexUid(tables.GetUid(), uid);
    insertCont(2, keys, values);
  }
  sqlite3_finalize(ctrl);
  sqlite3_finalize(tbl);
  sqlite3_finalize(cont);
  RawSaveOthers(s, others);
  Exec(s, "COMMIT");
  sqlite3_close(s);
  FsyncFile(path);
}

struct RawControl {
  std::int64_t oid;
  std::string uid;
  std::string enums[5];
  double values[9];
};
struct RawTable {
  std::int64_t oid;
  std::string uid, description;
  std::vector<double> table;
};

struct RawRows {
  std::vector<RawControl> controls;
  std::vector<RawTable> tables;
  std::vector<std::string> conts;
  std::vector<std::vector<RawCell>> others;
};

// Every row and column of the baseline's file, copied out into plain structures.
void RawRead(const std::string& path, const std::vector<OtherTable>& others, RawRows& rows) {
  sqlite3* s = nullptr;
  Check(sqlite3_open_v2(path.c_str(), &s, SQLITE_OPEN_READONLY | SQLITE_OPEN_NOMUTEX, nullptr), s);
  auto str = [](sqlite3_stmt* st, int i) {
    return std::string(reinterpret_cast<const char*>(sqlite3_column_text(st, i)),
                       static_cast<std::size_t>(sqlite3_column_bytes(st, i)));
  };
  auto& controls = rows.controls;
  auto& tables = rows.tables;
  auto& conts = rows.conts;
  sqlite3_stmt* st;
  // Sized first, so that growing the vectors costs the baseline nothing.
  for (const char* table : {"ctrl", "tbl"}) {
    Check(sqlite3_prepare_v2(s, (std::string("SELECT count(*) FROM ") + table).c_str(), -1, &st, nullptr), s);
    Check(sqlite3_step(st), s);
    const auto n = static_cast<std::size_t>(sqlite3_column_int64(st, 0));
    if (table[0] == 'c') controls.reserve(n);
    else tables.reserve(n);
    sqlite3_finalize(st);
  }
  Check(sqlite3_prepare_v2(s, "SELECT * FROM ctrl ORDER BY OID", -1, &st, nullptr), s);
  static const int kEnumCols[5] = {2, 3, 4, 7, 8};
  static const int kValueCols[9] = {5, 6, 9, 10, 11, 12, 13, 14, 15};
  while (sqlite3_step(st) == SQLITE_ROW) {
    RawControl c;
    c.oid = sqlite3_column_int64(st, 0);
    c.uid = str(st, 1);
    for (int i = 0; i < 5; ++i) c.enums[i] = str(st, kEnumCols[i]);
    for (int i = 0; i < 9; ++i) c.values[i] = sqlite3_column_double(st, kValueCols[i]);
    controls.push_back(std::move(c));
  }
  sqlite3_finalize(st);
  Check(sqlite3_prepare_v2(s, "SELECT * FROM tbl ORDER BY OID", -1, &st, nullptr), s);
  while (sqlite3_step(st) == SQLITE_ROW) {
    RawTable t;
    t.oid = sqlite3_column_int64(st, 0);
    t.uid = str(st, 1);
    t.description = str(st, 2);
    const auto* b = static_cast<const unsigned char*>(sqlite3_column_blob(st, 3));
    int n = sqlite3_column_bytes(st, 3);
    t.table.assign(reinterpret_cast<const double*>(b + 8), reinterpret_cast<const double*>(b + n));
    tables.push_back(std::move(t));
  }
  sqlite3_finalize(st);
  Check(sqlite3_prepare_v2(s, "SELECT keys, \"values\" FROM cont ORDER BY OID", -1, &st, nullptr), s);
  while (sqlite3_step(st) == SQLITE_ROW) conts.push_back(str(st, 0) + str(st, 1));
  sqlite3_finalize(st);
  for (const OtherTable& t : others) {
    Check(sqlite3_prepare_v2(s, ("SELECT * FROM \"" + t.name + "\" ORDER BY OID").c_str(), -1, &st, nullptr), s);
    while (sqlite3_step(st) == SQLITE_ROW) {
      auto& row = rows.others.emplace_back(static_cast<std::size_t>(t.columns));
      for (int i = 0; i < t.columns; ++i) ReadCell(st, i, row[static_cast<std::size_t>(i)]);
    }
    sqlite3_finalize(st);
  }
  sqlite3_close(s);
}

double Seconds(Clock::time_point a, Clock::time_point b) { return std::chrono::duration<double>(b - a).count(); }

// Times both sides of one iteration, in the order ours, base, base, ours, adding each side's two
// runs to its total, and returns this library's time for the iteration (the mean of its two).
// Whatever the side that runs second pays for the first (the disk writing back its file, the
// allocator merging the blocks it released) both then pay equally. `release` drops what a side
// made, outside the measures, after each run.
template <class Ours, class Base, class Release>
double SideBySide(Ours&& ours, Base&& base, Release&& release, double& oursTotal, double& baseTotal) {
  auto time = [&](auto& side) {
    const auto t0 = Clock::now();
    side();
    const double t = Seconds(t0, Clock::now());
    release();
    return t;
  };
  const double a1 = time(ours), b1 = time(base), b2 = time(base), a2 = time(ours);
  oursTotal += a1 + a2;
  baseTotal += b1 + b2;
  return (a1 + a2) / 2;
}

void Report(benchmark::State& state, std::int64_t n, double ours, double raw) {
  const double runs = 2.0 * static_cast<double>(state.iterations());  // each side runs twice an iteration
  state.counters["objects_per_s"] = static_cast<double>(n) * runs / ours;
  state.counters["raw_objects_per_s"] = static_cast<double>(n) * runs / raw;
  state.counters["ratio_to_raw"] = ours / raw;
}

// --- the benchmarks -----------------------------------------------------------------------------

void BM_Save(benchmark::State& state) {
  const std::int64_t n = state.range(0);
  const ddr_Database& db = Database(n);
  const std::vector<OtherTable>& others = OtherTables(n);
  const std::string path = Dir() + "/save.odb", raw = Dir() + "/raw-save.sqlite";
  dbf_SaveOptions options;
  double ours = 0, base = 0;
  for (auto _ : state)
    state.SetIterationTime(SideBySide([&] { dbf_Save(db, path, options); },
                                      [&] { RawSave(db, others, raw, options.pageSize); }, [] {}, ours, base));
  Report(state, n, ours, base);
}

void BM_Open(benchmark::State& state) {
  const std::int64_t n = state.range(0);
  const std::string path = Dir() + "/open-" + std::to_string(n) + ".odb";
  const std::string raw = Dir() + "/raw-open-" + std::to_string(n) + ".sqlite";
  const std::vector<OtherTable>& others = OtherTables(n);
  dbf_Save(Database(n), path);
  RawSave(Database(n), others, raw, dbf_SaveOptions().pageSize);
  double ours = 0, base = 0;
  for (auto _ : state) {
    // What was read is released outside both measures.
    std::unique_ptr<ddr_Database> db;
    std::unique_ptr<RawRows> rows;
    state.SetIterationTime(SideBySide(
        [&] {
          db = std::make_unique<ddr_Database>(dbf_Open(path));
          benchmark::DoNotOptimize(db.get());
        },
        [&] {
          rows = std::make_unique<RawRows>();
          RawRead(raw, others, *rows);
          benchmark::DoNotOptimize(rows.get());
        },
        [&] {
          db.reset();
          rows.reset();
        },
        ours, base));
  }
  Report(state, n, ours, base);
}

// The rows of the same file loaded by the database file's reader (checks, page checksums, typed
// values) without building objects: what opening costs before the classes read their fields.
void BM_OpenRowsOnly(benchmark::State& state) {
  const std::int64_t n = state.range(0);
  const std::string path = Dir() + "/rows-" + std::to_string(n) + ".odb";
  const std::string raw = Dir() + "/raw-rows-" + std::to_string(n) + ".sqlite";
  const std::vector<OtherTable>& others = OtherTables(n);
  dbf_Save(Database(n), path);
  RawSave(Database(n), others, raw, dbf_SaveOptions().pageSize);
  const dbc_UpgradeDriver driver;
  double ours = 0, base = 0;
  for (auto _ : state) {
    std::unique_ptr<RawRows> rows;
    state.SetIterationTime(SideBySide(
        [&] {
          dbf_Reader reader(path, driver);
          dbf_LoadedRow row;
          for (std::int64_t k = 1; k <= Controls(n); ++k) reader.Load(dbf_Ref{k, kadC_AdptMeshCtrl::TypeId()}, row);
          for (std::int64_t k = 1; k <= Tables(n); ++k) reader.Load(dbf_Ref{k, bnhT_Table::TypeId()}, row);
        },
        [&] {
          rows = std::make_unique<RawRows>();
          RawRead(raw, {}, *rows);  // the rows of the two classes the reader loads
        },
        [&] { rows.reset(); }, ours, base));
  }
  Report(state, n, ours, base);
}

void BM_Validate(benchmark::State& state) {
  const std::int64_t n = state.range(0);
  const ddr_Database& db = Database(n);
  const ddr_Model& m = *db.FindModel("Model-1");
  const auto& controls = dynamic_cast<const kadC_AdptMeshCtrlCont&>(*m.FindRepository("adaptiveMeshControls"));
  const auto& tables = dynamic_cast<const bnhT_TableCont&>(*m.FindRepository("benchTables"));
  const cls_ClassMetadata& tableClass = cls_MetadataOf(bnhT_Table::kClassName);
  double ours = 0, base = 0;
  for (auto _ : state) {
    auto t0 = Clock::now();
    cmd_Checker checker;
    checker.CheckDatabase(db);
    auto t1 = Clock::now();
    std::size_t bare = 0;
    for (const auto& kv : controls.Items()) {
      kv.second.Get().AssertValid();
      ++bare;
    }
    for (const auto& kv : tables.Items()) {
      tableClass.AssertValid(static_cast<const cls_Root<bnhT_Table>*>(&kv.second.Get()));
      ++bare;
    }
    auto t2 = Clock::now();
    if (checker.Checked() != bare || !checker.Failures().empty()) {
      std::fprintf(stderr, "validation: %zu checked, %zu failures, %zu in the bare loop\n", checker.Checked(),
                   checker.Failures().size(), bare);
      std::abort();
    }
    ours += Seconds(t0, t1);
    base += Seconds(t1, t2);
    state.SetIterationTime(Seconds(t0, t1));
  }
  state.counters["ratio"] = ours / base;
}

// Rewrites a file's control rows into the layout of the control's previous version (without the
// two weights its current version added), as that version of the library wrote them.
void MakeOneVersionOld(const std::string& path) {
  const std::vector<std::string> dropped = {"standardVolumetricSmoothingWeight", "originalConfigurationProjectionWeight"};
  std::vector<cls_Attribute> attrs;
  for (const cls_Attribute& a : cls_ClassRegistrar::Instance().ByName("kadC_AdptMeshCtrl")->Attributes())
    if (std::find(dropped.begin(), dropped.end(), a.handle.Name().str()) == dropped.end()) attrs.push_back(a);
  sqlite3* s = nullptr;
  Check(sqlite3_open_v2(path.c_str(), &s, SQLITE_OPEN_READWRITE, dbf_ChecksumVfs()), s);
  Exec(s,
       "BEGIN;"
       "ALTER TABLE kadC_AdptMeshCtrl DROP COLUMN standardVolumetricSmoothingWeight;"
       "ALTER TABLE kadC_AdptMeshCtrl DROP COLUMN originalConfigurationProjectionWeight;"
       "DELETE FROM dbf_Fields WHERE class = 'kadC_AdptMeshCtrl' AND name IN"
       " ('standardVolumetricSmoothingWeight', 'originalConfigurationProjectionWeight');"
       "UPDATE dbf_Catalog SET version = 829, fieldHash = '" + dbf_FieldTableHash(attrs) +
           "' WHERE name = 'kadC_AdptMeshCtrl';"
       "COMMIT;");
  sqlite3_close(s);
}

void BM_UpgradeOpen(benchmark::State& state) {
  const std::int64_t n = state.range(0);
  const std::string current = Dir() + "/current-" + std::to_string(n) + ".odb";
  const std::string old = Dir() + "/old-" + std::to_string(n) + ".odb";
  dbf_Save(Database(n), current);
  dbf_Save(Database(n), old);
  MakeOneVersionOld(old);
  double ours = 0, base = 0;
  for (auto _ : state) {
    std::unique_ptr<ddr_Database> upgraded, today;
    state.SetIterationTime(SideBySide(
        [&] {
          upgraded = std::make_unique<ddr_Database>(dbf_Open(old));
          benchmark::DoNotOptimize(upgraded.get());
        },
        [&] {
          today = std::make_unique<ddr_Database>(dbf_Open(current));
          benchmark::DoNotOptimize(today.get());
        },
        [&] {
          upgraded.reset();
          today.reset();
        },
        ours, base));
  }
  state.counters["ratio"] = ours / base;
}

void BM_FirstChangeAfterCopy(benchmark::State& state) {
  const std::int64_t n = state.range(0);
  const ddr_Database& db = Database(n);
  double copy = 0, first = 0, next = 0;
  for (auto _ : state) {
    auto t0 = Clock::now();
    auto twin = std::make_unique<ddr_Database>(db);
    auto t1 = Clock::now();
    auto& controls = dynamic_cast<kadC_AdptMeshCtrlCont&>(*twin->ModifyModel("Model-1")->ModifyRepository("adaptiveMeshControls"));
    controls.Get(cow_String("C-1")).SetInitialFeatureAngle(1.5);
    auto t2 = Clock::now();
    controls.Get(cow_String("C-2")).SetInitialFeatureAngle(2.5);
    auto t3 = Clock::now();
    twin.reset();  // releasing the separated repository is outside the measures
    copy += Seconds(t0, t1);
    first += Seconds(t1, t2);
    next += Seconds(t2, t3);
    state.SetIterationTime(Seconds(t0, t2));
  }
  const double iterations = static_cast<double>(state.iterations());
  state.counters["copy_us"] = copy * 1e6 / iterations;
  state.counters["first_change_us"] = first * 1e6 / iterations;
  state.counters["next_change_us"] = next * 1e6 / iterations;
  state.counters["ratio"] = first / next;
}

void BM_SaveJournal(benchmark::State& state) {
  const std::int64_t n = state.range(0);
  const ddr_Database& db = Database(n);
  dbf_SaveOptions options;
  options.journal = static_cast<dbf_Journal>(state.range(1));
  options.pageSize = static_cast<int>(state.range(2));
  const char* names[] = {"rollback", "wal", "off"};
  state.SetLabel(std::string(names[state.range(1)]) + " journal, " + std::to_string(options.pageSize) + "-byte pages");
  const std::string path = Dir() + "/journal.odb";
  for (auto _ : state) {
    auto t0 = Clock::now();
    dbf_Save(db, path, options);
    state.SetIterationTime(Seconds(t0, Clock::now()));
  }
  state.counters["objects_per_s"] = benchmark::Counter(static_cast<double>(n), benchmark::Counter::kIsIterationInvariantRate);
  state.counters["file_MB"] = static_cast<double>(std::filesystem::file_size(path)) / 1e6;
}

// --- the table of ratios ------------------------------------------------------------------------

// The console's report, and the ratio of every run kept by benchmark and object count, so that the
// program can end with one table of medians.
class RatioReporter : public benchmark::ConsoleReporter {
 public:
  void ReportRuns(const std::vector<Run>& runs) override {
    benchmark::ConsoleReporter::ReportRuns(runs);
    for (const Run& r : runs) {
      auto it = r.counters.find("ratio_to_raw");
      if (it == r.counters.end()) it = r.counters.find("ratio");
      if (it == r.counters.end() || r.error_occurred) continue;
      const auto key = std::make_pair(r.run_name.function_name, r.run_name.args);
      if (r.run_type == Run::RT_Iteration) runs_[key].push_back(it->second.value);
      else if (r.aggregate_name == "median") medians_[key] = it->second.value;
    }
  }
  void PrintTable() const {
    struct Line {
      const char* function;
      const char* label;
      const char* target;
    };
    static const Line kLines[] = {
        {"BM_Save", "save / raw SQLite", "1.2"},
        {"BM_Open", "open / raw SQLite", "1.2"},
        {"BM_UpgradeOpen", "open one version old / current open", "2"},
        {"BM_Validate", "validate every object / bare loop", "2"},
        {"BM_FirstChangeAfterCopy", "first change after a copy / next change", "-"},
    };
    static const char* kSizes[] = {"10000", "100000", "1000000"};
    std::printf("\n%-42s %10s %10s %10s %8s\n", "median ratio", "10^4", "10^5", "10^6", "target");
    for (const Line& l : kLines) {
      std::printf("%-42s", l.label);
      for (const char* size : kSizes) {
        const double v = Median(std::make_pair(std::string(l.function), std::string(size)));
        if (v < 0) std::printf(" %10s", "-");
        else std::printf(" %10.2f", v);
      }
      std::printf(" %8s\n", l.target);
    }
  }

 private:
  using Key = std::pair<std::string, std::string>;
  double Median(const Key& key) const {
    if (auto m = medians_.find(key); m != medians_.end()) return m->second;
    auto it = runs_.find(key);
    if (it == runs_.end() || it->second.empty()) return -1;
    std::vector<double> v = it->second;
    std::sort(v.begin(), v.end());
    const std::size_t h = v.size() / 2;
    return v.size() % 2 ? v[h] : (v[h - 1] + v[h]) / 2;
  }
  std::map<Key, std::vector<double>> runs_;
  std::map<Key, double> medians_;
};

}  // namespace

BENCHMARK(BM_Save)->RangeMultiplier(10)->Range(1000, 1000000)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Open)->RangeMultiplier(10)->Range(1000, 1000000)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(BM_UpgradeOpen)->RangeMultiplier(10)->Range(10000, 1000000)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Validate)->RangeMultiplier(10)->Range(10000, 1000000)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(BM_FirstChangeAfterCopy)->RangeMultiplier(10)->Range(10000, 1000000)->UseManualTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_OpenRowsOnly)->RangeMultiplier(10)->Range(1000, 1000000)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(BM_SaveJournal)
    ->ArgsProduct({{100000}, {0, 1, 2}, {4096, 16384, 65536}})
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

// Run with --benchmark_repetitions=3 (or more) for the medians the table is meant to show.
int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  RatioReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  reporter.PrintTable();
  benchmark::Shutdown();
  return 0;
}
