#pragma once
// A save into the file a database came from, in place: objects the last saved (or opened) state
// shares with the new one keep their rows; a changed object is written over its old row (same
// OID, so whoever refers to it stays as stored, and a row that comes out equal is not written at
// all); rows of objects that are gone are deleted with everything they held. One transaction of
// the file's rollback journal makes it all or nothing.
#include <sqlite3.h>

#include <cstdint>
#include <map>
#include <unordered_map>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "dbfile/dbf_ListText.h"
#include "dbfile/dbf_Root.h"
#include "dbfile/dbf_Sqlite.h"
#include "platform/persist/cls_Visitor.h"

struct dbf_WriteTable;
class dbf_Writer;

// The file is not one a patch can be trusted with (older class versions, a layout the objects
// would not write back the same, a missing row): the save writes a new file instead.
struct dbf_PatchUnfit : std::runtime_error {
  using std::runtime_error::runtime_error;
};

// An object as the file holds it: how to write it again and where its row is.
struct dbf_Stored {
  const void* ptr = nullptr;
  cls_WriteFn fn = nullptr;                  // for a member object
  const cls_ClassMetadata* cls = nullptr;   // for a root
  dbf_Ref ref;
  bool taken = false;  // claimed by the new state (kept or written over)
  void WriteTo(const cls_WriteVisitor& v) const;
};

// The stored row of an object that is written over, and the member objects it held, by field.
struct dbf_OldRow {
  dbf_OldRow() = default;
  dbf_OldRow(const dbf_OldRow&) = delete;
  dbf_OldRow& operator=(const dbf_OldRow&) = delete;
  ~dbf_OldRow() { Clear(); }
  void Clear() noexcept;
  // The stored object at field `field` that is this very object and not yet claimed; null if none.
  dbf_Stored* Find(std::size_t field, const void* obj);

  std::vector<sqlite3_value*> columns;  // OID, UID, then each field's column(s)
  std::vector<std::vector<dbf_Stored>> children;  // by field; a null element of a list as null
  // By field kept apart (a repository's elements): the old repository as its keyed collection
  // handed itself out, to diff the new one against.
  std::vector<const void*> keyed;
  // By field: the positions of each stored object, built when first asked.
  std::vector<std::unordered_multimap<const void*, std::size_t>> positions;
};

// Whether a stored column holds what a bound value would store. False when unsure: the caller
// then writes, which is always right.
bool dbf_SameInt(sqlite3_value* v, std::int64_t x) noexcept;
bool dbf_SameDouble(sqlite3_value* v, double x) noexcept;
bool dbf_SameText(sqlite3_value* v, const char* p, std::size_t n) noexcept;
bool dbf_SameBlob(sqlite3_value* v, const char* p, std::size_t n) noexcept;
bool dbf_SameRef(sqlite3_value* oid, sqlite3_value* classId, const dbf_Ref& ref) noexcept;

class dbf_Patch {
 public:
  struct CatalogRow {
    std::uint32_t typeId = 0;
    std::int64_t rows = 0;
  };
  // Reads the file's catalog and roots; refuses (dbf_PatchUnfit) a file whose classes are not
  // all stored at today's versions and field tables, or whose roots are not `old`.
  dbf_Patch(sqlite3* db, const std::vector<dbf_Root>& old);

  const CatalogRow* Catalog(const std::string& className) const;
  // The stored root of that name, marked as claimed; null for a new root.
  dbf_Stored* OldRoot(const cow_String& name);
  // The stored roots the new state has no root for, by name.
  std::vector<std::pair<std::string_view, dbf_Stored*>> UnclaimedRoots();

  // Loads the row the object `s` is stored in, and what it held, into `out`; refuses when the
  // object would not write that row back (bar its member objects).
  void LoadOld(dbf_WriteTable& table, const dbf_Stored& s, dbf_OldRow& out);
  // Deletes the row and, depth first, the rows of everything it held.
  void DeleteTree(dbf_Writer& writer, const dbf_Ref& ref);
  std::int64_t Deleted() const noexcept { return deleted_; }

 private:
  sqlite3* db_;
  std::map<std::string, CatalogRow> catalog_;
  std::map<std::string, dbf_Stored, std::less<>> roots_;
  std::int64_t deleted_ = 0;
};
