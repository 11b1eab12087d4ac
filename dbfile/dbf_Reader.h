#pragma once
// One opening of a database file: checks what the file is before SQLite reads it, checks its
// catalog against the registered classes (unknown classes, newer versions, field tables edited
// without a version step, versions without a chain of upgrade steps are all refused before any
// object is built), then loads rows on demand as the objects that hold them read their fields.
// Each class table is read in OID order, which is the order the objects are read in, so loading
// is one pass over each table. A row stored at an older class version is upgraded through the
// converter chain as it is loaded, before its class reads it.
#include <sqlite3.h>

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "platform/persist/cls_ClassMetadata.h"
#include "platform/persist/cls_Record.h"
#include "platform/persist/dbc_Converter.h"
#include "dbfile/dbf_Format.h"
#include "dbfile/dbf_ListText.h"
#include "dbfile/dbf_Root.h"
#include "dbfile/dbf_Sqlite.h"

struct dbf_ReadField {
  std::string name;
  cow_String key;  // the name again, shared by the records of upgraded rows
  int type = 0;  // attribute type as stored
  dbf_Kind kind = dbf_Kind::Int;
  int column = 0;  // the first result column of the field; -1 for a field kept apart
  bool apart = false;  // a repository's keys or elements, read from dbf_Elements
  // Enumeration literals seen so far, shared by every row, each with its value once a class has
  // read it; at most kMaxLiterals, reserved so that rows may point at them.
  std::vector<cow_String> literals;
  std::vector<std::string_view> views;  // the literals' texts side by side, searched row by row
  std::vector<cls_LiteralCode> codes;
  // The literals today's class takes in the field, where the row is read as stored (not
  // upgraded): a literal first met is checked against them, so that a bad one is refused naming
  // the field, the row and the class. Null where the row is upgraded first or the field unknown.
  const omu_EnumLiteral* allowed = nullptr;
  static constexpr std::size_t kMaxLiterals = 64;
};

struct dbf_ReadTable {
  std::string className;
  const cls_ClassMetadata* cls = nullptr;  // the registered class of today (null for a part class)
  const dbc_ClassRename* rename = nullptr;  // set for a class stored under a retired name
  std::uint32_t storedTypeId = 0;
  int storedVersion = 0;
  bool upgrade = false;
  dbc_UpgradeDriver::Steps steps;  // the upgrade steps of every row, found once
  bool hasObjects = false;
  std::vector<dbf_ReadField> fields;
  std::unordered_map<std::string_view, std::size_t> byName;  // views into fields' names
  // Rows are numbered from 1. A file saved in place may leave gaps (rows of objects that went
  // away) and number new rows after the highest: the highest is looked up only when a reference
  // goes beyond `rows`.
  std::int64_t rows = 0;
  std::int64_t lastOid = -1;  // not yet looked up
  std::int64_t scanned = 0;   // rows the scan has passed
  std::string lastSql;
  dbf_Statement scan;   // every row in OID order
  dbf_Statement point;  // one row by OID, prepared from pointSql when first needed
  std::string pointSql;
  // The field layouts of classes that asked to read rows by position, each with whether the
  // stored fields are exactly that layout (a current-version table stored in the same order).
  std::vector<std::pair<const cls_FieldLayout*, bool>> layouts;
  bool scanStarted = false;
  bool scanDone = false;
  std::int64_t scanOid = 0;
  // The rows loaded so far, by OID: densely while OIDs come in order, as a set beyond that, so
  // that a row count a damaged catalog inflates costs no memory.
  std::vector<unsigned char> seen;
  std::unordered_set<std::int64_t> seenSparse;
  std::int64_t loaded = 0;
};

// One stored row, loaded. Member objects stay references until their owner reads them.
struct dbf_LoadedRow {
  struct Upgraded {
    cls_Record record;  // the row as the conversions left it; member objects are stub records
    // Each stub with the row it stands for. Holding the stub keeps its address from being
    // reused by a record a conversion makes.
    std::unordered_map<const cls_Record*, std::pair<cls_RecordPtr, dbf_Ref>> stubs;
    cls_Record scratch;  // where the conversions build each new row
  };
  dbf_ReadTable* table = nullptr;
  std::int64_t oid = 0;
  cls_Uid uid = cls_Uid::Null();
  // By stored field: plain values in cells, which point at the row's texts (or a literal of the
  // table) and at its lists and tables in values; objects are in refs. A row is never copied,
  // so the cells' pointers stay valid until its next load.
  std::vector<cls_ReadCell> cells;
  std::vector<cow_String> texts;
  std::vector<cls_Value> values;
  std::vector<dbf_Ref> refs;
  std::vector<std::pair<std::uint32_t, std::uint32_t>> spans;  // by stored field: first ref, count
  std::unique_ptr<Upgraded> upgraded;  // set when the row was stored at an older version
  // The last row's, kept when the next row is loaded: an upgraded row reuses its storage.
  std::unique_ptr<Upgraded> spare;
};

// The elements dbf_Elements holds for one repository row, in the order of their rows.
struct dbf_ElementRun {
  std::vector<cow_String> texts;       // keys that are names
  std::vector<std::int32_t> integers;  // keys that are integers
  std::vector<dbf_Ref> refs;
  bool textKeys = false, integerKeys = false;
  bool taken = false;  // read by its repository
};

class dbf_Reader {
 public:
  // Refuses (nex_CmdException, without the file's name) whatever makes the file unreadable.
  dbf_Reader(const std::string& path, const dbc_UpgradeDriver& driver);
  ~dbf_Reader();
  dbf_Reader(const dbf_Reader&) = delete;
  dbf_Reader& operator=(const dbf_Reader&) = delete;

  // Reads every root; then refuses rows that no root holds and any page, of those SQLite did not
  // read, that fails its checksum.
  std::vector<dbf_LoadedRoot> LoadRoots(const cls_ClassMetadata* required);

  // --- for row readers ---
  void Load(const dbf_Ref& ref, dbf_LoadedRow& row);
  // Counts the nesting of member objects being read; refuses a depth no model reaches, before
  // the reading recursion could exhaust the stack.
  class Nesting {
   public:
    explicit Nesting(dbf_Reader& r);
    ~Nesting() { --reader_.depth_; }
    Nesting(const Nesting&) = delete;
    Nesting& operator=(const Nesting&) = delete;

   private:
    dbf_Reader& reader_;
  };
  static constexpr int kMaxDepth = 256;
  // Today's type id of a stored class id.
  unsigned CurrentTypeId(std::uint32_t storedClassId) const;
  // Whether the table's rows, as stored, hold exactly the layout's fields in its order.
  static bool Positional(dbf_ReadTable& t, const cls_FieldLayout& layout);
  // A stored field of a loaded row as a record value.
  static cls_Value ValueOf(const dbf_LoadedRow& row, std::size_t field);
  // The same into a value that may already hold one of its kind, assigned in place.
  static void AssignValue(const dbf_LoadedRow& row, std::size_t field, cls_Value& out);

 private:
  void CheckFile(const std::string& path);
  void CheckUnreadPages();
  void ReadMeta();
  void ReadCatalog();
  void PrepareTable(dbf_ReadTable& t);
  dbf_ReadTable& TableOf(std::uint32_t storedClassId) const;
  sqlite3_stmt* Position(dbf_ReadTable& t, std::int64_t oid);
  void Extract(dbf_ReadTable& t, sqlite3_stmt* s, dbf_LoadedRow& row);
  // The keys or elements of a repository row, from the runs ReadElements collected.
  void ExtractApart(dbf_ReadTable& t, dbf_LoadedRow& row, std::size_t field);
  // Every row of dbf_Elements, by the repository row that owns it (files that keep elements apart).
  void ReadElements();
  // Refuses element rows that no repository read.
  void CheckElementsTaken() const;
  void Upgrade(dbf_LoadedRow& row);
  // The row's spare upgrade storage (its record as the last row left it, its stubs emptied), or
  // a new one.
  static std::unique_ptr<dbf_LoadedRow::Upgraded> Reuse(dbf_LoadedRow& row);
  // Renamed classes: the row built by the rename's conversion, then carried up its new chain.
  void Rename(dbf_LoadedRow& row);
  class Source;
  // A stored row as stored, object fields as their "#OID" and "#ClassID" numbers.
  static cls_Record RawRecord(const dbf_LoadedRow& row);
  std::shared_ptr<const cls_Record> FetchRaw(dbf_ReadTable& t, std::int64_t oid);
  // False when the row was loaded before.
  static bool MarkLoaded(dbf_ReadTable& t, std::int64_t oid);
  std::int64_t LastOid(dbf_ReadTable& t);

  const dbc_UpgradeDriver& driver_;
  struct File {
    int fd = -1;
    File() = default;
    File(const File&) = delete;
    File& operator=(const File&) = delete;
    ~File();
  };
  File file_;  // the file, open for the checks of the pages SQLite does not read
  std::uint32_t pageSize_ = 0;
  std::uintmax_t pages_ = 0;
  std::vector<unsigned char> checked_;  // per page: its checksum was verified by a read of SQLite
  std::unique_ptr<dbf_Connection> conn_;
  int databaseVersion_ = 0;
  std::map<std::pair<std::uint32_t, std::int64_t>, dbf_ElementRun> elements_;  // by owner's class id, OID
  std::vector<std::unique_ptr<dbf_ReadTable>> tables_;
  std::unordered_map<std::uint32_t, dbf_ReadTable*> byStoredId_;
  mutable dbf_ReadTable* lastTable_ = nullptr;  // the last one TableOf found
  int depth_ = 0;
};
