#include "bench/bnhT_Raw.h"

#include <map>

#include "bench/bnhT_Model.h"
#include "dbfile/dbf_File.h"
#include "dbfile/dbf_Format.h"
#include "dbfile/dbf_Vfs.h"
#include "bench/bnhT_Table.h"
#include "kad/kadC_ACWrapper.h"
#include "platform/model/ddr_Model.h"

namespace bnhT {
namespace {

// --- the raw baseline ---------------------------------------------------------------------------

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

}  // namespace

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
                           " 'dbf_Catalog', 'dbf_Fields', 'dbf_Roots', 'dbf_Elements', 'kadC_AdptMeshCtrl', 'kadC_AdptMeshCtrlCont',"
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

namespace {
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
}  // namespace

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
  Exec(s, "CREATE TABLE cont (OID INTEGER PRIMARY KEY, UID TEXT NOT NULL)");
  Exec(s, "CREATE TABLE elem (OwnerID INTEGER NOT NULL, Owner INTEGER NOT NULL, Key NOT NULL, OID INTEGER NOT NULL,"
          " ClassID INTEGER NOT NULL)");
  sqlite3_stmt *ctrl, *tbl, *cont, *elem;
  Check(sqlite3_prepare_v2(s, "INSERT INTO ctrl VALUES (?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?)", -1, &ctrl, nullptr), s);
  Check(sqlite3_prepare_v2(s, "INSERT INTO tbl VALUES (?,?,?,?)", -1, &tbl, nullptr), s);
  Check(sqlite3_prepare_v2(s, "INSERT INTO cont VALUES (?,?)", -1, &cont, nullptr), s);
  Check(sqlite3_prepare_v2(s, "INSERT INTO elem VALUES (?,?,?,?,?)", -1, &elem, nullptr), s);
  const ddr_Model& m = db.GetModels().begin()->second.Get();
  char uid[32];
  auto text = [](sqlite3_stmt* st, int i, const char* t) { sqlite3_bind_text(st, i, t, -1, SQLITE_STATIC); };
  auto insertCont = [&](std::int64_t oid) {
    sqlite3_bind_int64(cont, 1, oid);
    sqlite3_bind_text(cont, 2, uid, 32, SQLITE_STATIC);
    Check(sqlite3_step(cont), s);
    sqlite3_reset(cont);
  };
  auto insertElem = [&](unsigned owner, std::int64_t ownerOid, const cow_String& key, std::int64_t oid, unsigned cls) {
    sqlite3_bind_int64(elem, 1, owner);
    sqlite3_bind_int64(elem, 2, ownerOid);
    sqlite3_bind_text(elem, 3, key.c_str(), static_cast<int>(key.size()), SQLITE_STATIC);
    sqlite3_bind_int64(elem, 4, oid);
    sqlite3_bind_int64(elem, 5, cls);
    Check(sqlite3_step(elem), s);
    sqlite3_reset(elem);
  };
  {
    const auto& controls = dynamic_cast<const kadC_AdptMeshCtrlCont&>(*m.FindRepository("adaptiveMeshControls"));
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
      insertElem(kadC_AdptMeshCtrlCont::TypeId(), 1, key, oid, kadC_AdptMeshCtrl::TypeId());
    }
    HexUid(controls.GetUid(), uid);
    insertCont(1);
  }
  {
    const auto& tables = dynamic_cast<const bnhT_TableCont&>(*m.FindRepository("benchTables"));
    std::string blob;
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
      insertElem(bnhT_TableCont::TypeId(), 2, key, oid, bnhT_Table::TypeId());
    }
    HexUid(tables.GetUid(), uid);
    insertCont(2);
  }
  sqlite3_finalize(ctrl);
  sqlite3_finalize(tbl);
  sqlite3_finalize(cont);
  sqlite3_finalize(elem);
  RawSaveOthers(s, others);
  Exec(s, "CREATE UNIQUE INDEX elemByKey ON elem (OwnerID, Owner, Key)");
  Exec(s, "COMMIT");
  sqlite3_close(s);
  FsyncFile(path);
}

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
  Check(sqlite3_prepare_v2(s, "SELECT UID FROM cont ORDER BY OID", -1, &st, nullptr), s);
  while (sqlite3_step(st) == SQLITE_ROW) conts.push_back(str(st, 0));
  sqlite3_finalize(st);
  Check(sqlite3_prepare_v2(s, "SELECT OwnerID, Owner, Key, OID, ClassID FROM elem ORDER BY rowid", -1, &st, nullptr), s);
  while (sqlite3_step(st) == SQLITE_ROW)
    rows.elements.push_back(RawElement{sqlite3_column_int64(st, 0), sqlite3_column_int64(st, 1), str(st, 2),
                                       sqlite3_column_int64(st, 3), sqlite3_column_int64(st, 4)});
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

}  // namespace bnhT
