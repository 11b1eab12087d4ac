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
// BM_SaveChanged saves, in place, a model of N objects after changing k of its controls, against
// raw SQLite updating the same k rows of its own file in place, in one transaction with the same
// journal and syncs (rollback journal, synchronous FULL); counter "ratio".
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

#include "bench/bnhT_Model.h"
#include "bench/bnhT_Raw.h"
#include "bench/bnhT_Table.h"
#include "command/cmd_Check.h"
#include "dbfile/dbf_Format.h"
#include "dbfile/dbf_Vfs.h"
#include "kad/kadC_ACWrapper.h"
#include "platform/model/ddr_Model.h"
#include "platform/persist/cls_ClassRegistrar.h"
#include "platform/persist/dbc_Converter.h"
#include "dbfile/dbf_Baseline.h"
#include "dbfile/dbf_File.h"
#include "dbfile/dbf_Reader.h"
#include "kad/kadC_AdptMeshCtrlCont.h"


namespace {

using namespace bnhT;
using Clock = std::chrono::steady_clock;

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

// Changes k controls spread over the model, each to a value that differs from the last round's.
void ChangeControls(ddr_Database& db, std::int64_t n, std::int64_t k, int round) {
  auto& controls =
      dynamic_cast<kadC_AdptMeshCtrlCont&>(*db.ModifyModel("Model-1")->ModifyRepository("adaptiveMeshControls"));
  const std::int64_t step = Controls(n) / k;
  for (std::int64_t j = 0; j < k; ++j)
    controls.Get(cow_String("C-" + std::to_string(j * step))).SetInitialFeatureAngle(1 + round % 170);
}

// The same k rows updated in place: control "C-i" is row i + 1 of both files.
void RawUpdate(const std::string& path, std::int64_t n, std::int64_t k, int round) {
  sqlite3* s = nullptr;
  Check(sqlite3_open_v2(path.c_str(), &s, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr), s);
  Exec(s, "PRAGMA journal_mode = DELETE; PRAGMA synchronous = FULL; PRAGMA cache_size = -65536; BEGIN IMMEDIATE");
  sqlite3_stmt* u = nullptr;
  Check(sqlite3_prepare_v2(s, "UPDATE ctrl SET initialFeatureAngle = ?1 WHERE OID = ?2", -1, &u, nullptr), s);
  const std::int64_t step = Controls(n) / k;
  for (std::int64_t j = 0; j < k; ++j) {
    sqlite3_bind_double(u, 1, 1 + round % 170);
    sqlite3_bind_int64(u, 2, j * step + 1);
    if (sqlite3_step(u) != SQLITE_DONE) Check(sqlite3_errcode(s), s);
    sqlite3_reset(u);
  }
  sqlite3_finalize(u);
  Exec(s, "COMMIT");
  sqlite3_close(s);
}

void BM_SaveChanged(benchmark::State& state) {
  const std::int64_t n = state.range(0), k = state.range(1);
  const std::string path = Dir() + "/changed-" + std::to_string(n) + ".odb";
  const std::string raw = Dir() + "/raw-changed-" + std::to_string(n) + ".sqlite";
  RawSave(Database(n), OtherTables(n), raw, dbf_SaveOptions().pageSize);
  ddr_Database db = Database(n);
  dbf_Baseline baseline;
  dbf_SaveOptions options;
  options.baseline = &baseline;
  dbf_SaveStats stats;
  options.stats = &stats;
  dbf_Save(db, path, options);
  double ours = 0, base = 0;
  int round = 0;
  // Ours, raw, raw, ours; the changes are made outside the measures.
  auto oursOnce = [&] {
    ChangeControls(db, n, k, ++round);
    const auto t0 = Clock::now();
    dbf_Save(db, path, options);
    const double t = Seconds(t0, Clock::now());
    if (!stats.inPlace || stats.written != k) {
      std::fprintf(stderr, "a save after %lld changes wrote %lld rows (in place: %d)\n", static_cast<long long>(k),
                   static_cast<long long>(stats.written), stats.inPlace);
      std::abort();
    }
    return t;
  };
  auto rawOnce = [&] {
    const auto t0 = Clock::now();
    RawUpdate(raw, n, k, ++round);
    return Seconds(t0, Clock::now());
  };
  for (auto _ : state) {
    const double a1 = oursOnce(), b1 = rawOnce(), b2 = rawOnce(), a2 = oursOnce();
    ours += a1 + a2;
    base += b1 + b2;
    state.SetIterationTime((a1 + a2) / 2);
  }
  state.counters["ratio"] = ours / base;
  state.counters["ours_ms"] = ours * 1e3 / (2.0 * static_cast<double>(state.iterations()));
  state.counters["raw_ms"] = base * 1e3 / (2.0 * static_cast<double>(state.iterations()));
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
        {"BM_Advice", "advise every object / validate every object", "3"},
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
    std::printf("\n%-42s %10s %10s %10s %8s\n", "median ratio, 10^6 objects", "k = 1", "k = 100", "k = 10^4",
                "target");
    std::printf("%-42s", "save after k changes / raw update in place");
    for (const char* k : {"1", "100", "10000"}) {
      const double v = Median(std::make_pair(std::string("BM_SaveChanged"), std::string("1000000/") + k));
      if (v < 0) std::printf(" %10s", "-");
      else std::printf(" %10.2f", v);
    }
    std::printf(" %8s\n", "2");
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
BENCHMARK(BM_SaveChanged)
    ->Args({10000, 1})
    ->Args({10000, 100})
    ->Args({100000, 1})
    ->Args({100000, 100})
    ->Args({100000, 10000})
    ->Args({1000000, 1})
    ->Args({1000000, 100})
    ->Args({1000000, 10000})
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
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
