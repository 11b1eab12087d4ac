#pragma once
// One save of objects into a new, empty database file: a table per class, created when the first
// object of the class arrives, with one prepared insert; the roots, the catalog, the stored
// field tables and the file's identity. Or, given a patch, a save into the file the objects'
// previous state is stored in, writing what changed (dbf_Patch.h). The caller holds the
// transaction.
#include <sqlite3.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "platform/persist/cls_ClassMetadata.h"
#include "platform/persist/cls_Visitor.h"
#include "dbfile/dbf_ElementRows.h"
#include "dbfile/dbf_Format.h"
#include "dbfile/dbf_ListText.h"
#include "dbfile/dbf_Sqlite.h"

class dbf_Patch;
class dbf_RowWriter;

struct dbf_WriteField {
  std::string name;
  dbf_Kind kind;
  int param;  // the first bind parameter of the field's column(s); 0 for a field kept apart
  bool apart = false;  // a repository's keys or elements, stored in dbf_Elements, not in a column
};

struct dbf_WriteTable {
  const cls_ClassMetadata* cls = nullptr;
  std::vector<dbf_WriteField> fields;
  std::unordered_map<std::string_view, std::size_t> byName;  // views into fields' names
  std::vector<char> plain;  // by field: whether its kind is written into a plain cell
  // The field layouts classes offered to write by position, each with whether it is exactly
  // this table's fields in order.
  std::vector<std::pair<const cls_FieldLayout*, bool>> layouts;
  dbf_Statement insert;
  dbf_Statement select;  // a patch's: one stored row by OID
  dbf_Statement erase;   // a patch's: delete one row by OID
  std::int64_t nextOid = 1;
  std::int64_t rows = 0;  // rows the table holds
  bool created = true;    // false for a table the patched file held already
  bool touched = false;   // a row was stored or deleted
};

class dbf_Writer {
 public:
  using Progress = std::function<void(const char* stage, std::int64_t rows)>;

  // Creates the file's own tables, or with a patch uses the file's. `progress` may be null.
  dbf_Writer(sqlite3* db, const Progress* progress, dbf_Patch* patch = nullptr);
  ~dbf_Writer();
  dbf_Writer(const dbf_Writer&) = delete;
  dbf_Writer& operator=(const dbf_Writer&) = delete;

  // Stores the object and everything it holds, and lists it as a root under the name.
  void WriteRoot(const cow_String& name, const cls_ClassMetadata& cls, const void* object);
  // Stores the catalog, the field tables, the versions and the file's identity.
  void Finish(int databaseVersion, const char* libraryVersion);
  // Rows stored (inserted or written over).
  std::int64_t Rows() const noexcept { return rows_; }
  dbf_Patch* Patch() const noexcept { return patch_; }
  dbf_ElementRows& Elements() noexcept { return elements_; }

  // --- for row writers ---
  // The table of a registered class, created on first use; refuses an unregistered type id and
  // a class whose fields the file cannot store.
  dbf_WriteTable& TableFor(unsigned typeId);
  // The row writer for objects nested `depth` levels below a root (one per level, reused).
  dbf_RowWriter& WriterAt(std::size_t depth);
  void RowStored();

 private:
  dbf_WriteTable& CreateTable(const cls_ClassMetadata& cls);
  void WriteRootRow(const cow_String& name, const dbf_Ref& ref);
  void DropUnclaimedRoots();

  sqlite3* db_;
  dbf_Patch* patch_;
  const Progress* progress_;
  std::vector<std::unique_ptr<dbf_WriteTable>> tables_;  // in creation order
  std::unordered_map<unsigned, dbf_WriteTable*> byTypeId_;
  dbf_WriteTable* last_ = nullptr;
  std::vector<std::unique_ptr<dbf_RowWriter>> writers_;
  dbf_Statement insertRoot_;
  dbf_ElementRows elements_;
  std::int64_t rows_ = 0;
};
