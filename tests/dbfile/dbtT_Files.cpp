#include "tests/dbfile/dbtT_Files.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "kad/kadC_ACWrapper.h"
#include "dbfile/dbf_Vfs.h"
#include "tests/dbfile/dbtT_Sample.h"

std::vector<unsigned char> dbtT_ReadBytes(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  return std::vector<unsigned char>(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

void dbtT_WriteBytes(const std::string& path, const std::vector<unsigned char>& bytes) {
  std::ofstream out(path, std::ios::binary | std::ios::trunc);
  out.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
}

void dbtT_Edit(const std::string& path, const std::string& sql) {
  sqlite3* db = nullptr;
  ASSERT_EQ(sqlite3_open_v2(path.c_str(), &db, SQLITE_OPEN_READWRITE, dbf_ChecksumVfs()), SQLITE_OK);
  char* err = nullptr;
  int rc = sqlite3_exec(db, sql.c_str(), nullptr, nullptr, &err);
  EXPECT_EQ(rc, SQLITE_OK) << (err ? err : "") << " in " << sql;
  sqlite3_free(err);
  sqlite3_close(db);
}

std::vector<std::string> dbtT_QueryColumn(const std::string& path, const std::string& sql) {
  std::vector<std::string> out;
  sqlite3* db = nullptr;
  EXPECT_EQ(sqlite3_open_v2(path.c_str(), &db, SQLITE_OPEN_READONLY, nullptr), SQLITE_OK);
  sqlite3_stmt* s = nullptr;
  EXPECT_EQ(sqlite3_prepare_v2(db, sql.c_str(), -1, &s, nullptr), SQLITE_OK) << sqlite3_errmsg(db) << " in " << sql;
  while (s && sqlite3_step(s) == SQLITE_ROW) {
    const auto* t = reinterpret_cast<const char*>(sqlite3_column_text(s, 0));
    out.emplace_back(t ? std::string(t, static_cast<std::size_t>(sqlite3_column_bytes(s, 0))) : "NULL");
  }
  sqlite3_finalize(s);
  sqlite3_close(db);
  return out;
}

std::string dbtT_Query(const std::string& path, const std::string& sql) {
  auto col = dbtT_QueryColumn(path, sql);
  return col.empty() ? std::string("<no row>") : col.front();
}

ddr_Database dbtT_MakeDatabase(int controls) {
  ddr_Database db;
  ddr_Model& m = db.CreateModel("Model-1");
  auto* cont = dynamic_cast<kadC_AdptMeshCtrlCont*>(m.ModifyRepository("adaptiveMeshControls"));
  EXPECT_NE(cont, nullptr);
  for (int i = 1; i <= controls; ++i) {
    kadC_AdptMeshCtrl c;
    c.SetInitialFeatureAngle(i % 180);
    c.SetMeshConstraintAngle(0.5 * (i % 360));
    c.SetSmoothingAlgorithm(static_cast<kadC_AdptMeshCtrl::SmoothingAlgorithmEnm>(i % 3));
    cont->Insert("C-" + std::to_string(i), c);
  }
  auto* samples = dynamic_cast<dbtT_SampleCont*>(m.ModifyRepository("samples"));
  EXPECT_NE(samples, nullptr);
  samples->Insert("Filled", dbtT_Sample::Filled());
  samples->Insert("Default", dbtT_Sample());
  db.CreateModel("Model-10");
  return db;
}

std::vector<std::string> dbtT_ListDir(const std::string& dir) {
  std::vector<std::string> names;
  for (const auto& e : std::filesystem::directory_iterator(dir)) names.push_back(e.path().filename().string());
  std::sort(names.begin(), names.end());
  return names;
}
