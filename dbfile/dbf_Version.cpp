#include "dbfile/dbf_Version.h"

#include "dbfile/dbf_Format.h"
#include "dbfile/dbf_Sqlite.h"
#include "platform/base/nex_Exception.h"
#include "platform/persist/cls_ClassRegistrar.h"

dbf_FileVersion dbf_ReadFileVersion(const std::string& path) {
  try {
    dbf_Connection conn(path, SQLITE_OPEN_READONLY | SQLITE_OPEN_NOMUTEX, nullptr);
    dbf_FileVersion v;
    v.databaseVersion = static_cast<int>(conn.QueryInt("PRAGMA user_version"));
    v.current = v.databaseVersion == dbf_DatabaseVersion();
    dbf_Statement catalog(conn.Get(), "SELECT \"name\", \"version\" FROM " + dbf_Quote(dbf_kCatalogTable));
    while (v.current && catalog.Step()) {
      const auto* name = reinterpret_cast<const char*>(sqlite3_column_text(catalog.Get(), 0));
      const cls_ClassMetadata* cls = cls_ClassRegistrar::Instance().ByName(name ? name : "");
      v.current = cls && sqlite3_column_int64(catalog.Get(), 1) == cls->Version();
    }
    return v;
  } catch (const std::exception& e) {
    nex_ThrowCmd("Cannot read the version of the model database \"" + path + "\": " + e.what());
  }
}
