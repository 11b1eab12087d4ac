// The rows of dbf_Elements, read in one pass as the file opens and handed to the repositories
// that own them as their rows load.
#include <string>

#include "dbfile/dbf_Reader.h"
#include "dbfile/dbf_ReaderSupport.h"

void dbf_Reader::ReadElements() {
  if (databaseVersion_ < dbf_kElementsApartVersion) return;
  if (conn_->QueryInt(std::string("SELECT count(*) FROM sqlite_master WHERE type = 'table' AND name = '") +
                      dbf_kElementsTable + "'") == 0)
    dbf_Damaged(std::string("it has no table ") + dbf_kElementsTable);
  dbf_Statement scan(conn_->Get(), "SELECT \"OwnerID\", \"Owner\", \"Key\", \"OID\", \"ClassID\", rowid FROM " +
                                       dbf_Quote(dbf_kElementsTable) + " ORDER BY rowid");
  std::pair<std::uint32_t, std::int64_t> last{0, -1};
  dbf_ElementRun* run = nullptr;
  while (scan.Step()) {
    sqlite3_stmt* s = scan.Get();
    const std::int64_t n = sqlite3_column_int64(s, 5);
    const std::int64_t ownerClass = sqlite3_column_int64(s, 0), owner = sqlite3_column_int64(s, 1);
    const std::int64_t oid = sqlite3_column_int64(s, 3), classId = sqlite3_column_int64(s, 4);
    if (sqlite3_column_type(s, 0) != SQLITE_INTEGER || sqlite3_column_type(s, 1) != SQLITE_INTEGER ||
        sqlite3_column_type(s, 3) != SQLITE_INTEGER || sqlite3_column_type(s, 4) != SQLITE_INTEGER ||
        ownerClass < 0 || ownerClass > UINT32_MAX || owner < 1 || oid < 1 || classId < 0 || classId > UINT32_MAX)
      dbf_Damaged("row " + std::to_string(n) + " of " + dbf_kElementsTable + " is malformed");
    const std::pair<std::uint32_t, std::int64_t> key{static_cast<std::uint32_t>(ownerClass), owner};
    if (!run || key != last) {
      run = &elements_[key];
      last = key;
    }
    switch (sqlite3_column_type(s, 2)) {
      case SQLITE_TEXT:
        run->textKeys = true;
        run->texts.emplace_back(dbf_Text(s, 2));
        break;
      case SQLITE_INTEGER: {
        const std::int64_t k = sqlite3_column_int64(s, 2);
        if (k < INT32_MIN || k > INT32_MAX)
          dbf_Damaged("row " + std::to_string(n) + " of " + dbf_kElementsTable + " holds a key beyond 32 bits");
        run->integerKeys = true;
        run->integers.push_back(static_cast<std::int32_t>(k));
        break;
      }
      default: dbf_Damaged("row " + std::to_string(n) + " of " + dbf_kElementsTable + " holds a key that is no name or integer");
    }
    if (run->textKeys && run->integerKeys) {
      auto t = byStoredId_.find(key.first);
      dbf_Damaged("the elements of row " + std::to_string(owner) + " of " +
                  (t == byStoredId_.end() ? "class id " + std::to_string(ownerClass) : "class " + t->second->className) +
                  " mix keys that are names with integer keys");
    }
    run->refs.push_back(dbf_Ref{oid, static_cast<std::uint32_t>(classId)});
  }
}

void dbf_Reader::CheckElementsTaken() const {
  std::int64_t stray = 0;
  for (const auto& [owner, run] : elements_)
    if (!run.taken) stray += static_cast<std::int64_t>(run.refs.size());
  if (stray)
    dbf_Damaged(std::string(dbf_kElementsTable) + " holds " +
                (stray == 1 ? std::string("1 row that belongs") : std::to_string(stray) + " rows that belong") +
                " to no repository of the file");
}
