// Opening a file: its checks before SQLite reads it, its catalog against the registered classes,
// and the reading of its roots.
#include "dbfile/dbf_Reader.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <cstring>
#include <cstdio>
#include <filesystem>
#include <limits>
#include <memory>
#include <set>

#include "platform/persist/cls_ClassRegistrar.h"
#include "dbfile/dbf_ReaderLiterals.h"
#include "dbfile/dbf_RowReader.h"
#include "dbfile/dbf_Utf8.h"
#include "dbfile/dbf_TableBlob.h"
#include "dbfile/dbf_Vfs.h"
#include "platform/base/nex_Exception.h"
#include "dbfile/dbf_ReaderSupport.h"

namespace {

// Up to n bytes from the offset; fewer only at the end of the file. A failed read throws.
std::size_t ReadAt(int fd, unsigned char* out, std::size_t n, std::uintmax_t offset) {
  std::size_t done = 0;
  while (done < n) {
    const ssize_t r = ::pread(fd, out + done, n - done, static_cast<off_t>(offset + done));
    if (r == 0) break;
    if (r < 0) {
      if (errno == EINTR) continue;
      nex_ThrowCmd("the file cannot be read");
    }
    done += static_cast<std::size_t>(r);
  }
  return done;
}

std::string Hex32(std::uint32_t v) {
  char buf[16];
  std::snprintf(buf, sizeof buf, "0x%08x", v);
  return buf;
}

}  // namespace

dbf_Reader::dbf_Reader(const std::string& path, const dbc_UpgradeDriver& driver) : driver_(driver) {
  CheckFile(path);
  // Read-only, so opening changes nothing; NOMUTEX, as the connection never leaves this thread.
  conn_ = std::make_unique<dbf_Connection>(path, SQLITE_OPEN_READONLY | SQLITE_OPEN_NOMUTEX, dbf_ChecksumVfs());
  // SQLite's reads check the pages they read; LoadRoots checks the rest at its end, so that each
  // page is read and checked once.
  checked_.assign(static_cast<std::size_t>(pages_), 0);
  if (!dbf_NoteCheckedPages(conn_->Get(), checked_.data(), static_cast<std::int64_t>(pages_)))
    nex_ThrowCmd("the file cannot be read through the checksums of its pages");
  ReadMeta();
  ReadCatalog();
  ReadElements();
}

dbf_Reader::~dbf_Reader() {
  tables_.clear();  // statements before their connection
}

dbf_Reader::File::~File() {
  if (fd >= 0) ::close(fd);
}

// What the file is, told from its first bytes before SQLite reads it.
void dbf_Reader::CheckFile(const std::string& path) {
  namespace fs = std::filesystem;
  std::error_code ec;
  fs::file_status st = fs::status(path, ec);
  if (!fs::exists(st)) nex_ThrowCmd("there is no such file");
  if (fs::is_directory(st)) nex_ThrowCmd("it is a directory, not a file");
  if (!fs::is_regular_file(st)) nex_ThrowCmd("it is not a regular file");
  std::uintmax_t size = fs::file_size(path, ec);
  if (ec) nex_ThrowCmd("its size cannot be read (" + ec.message() + ")");
  if (size == 0) nex_ThrowCmd("the file is empty");
  unsigned char bytes[dbf_kHeaderSize] = {};
  // A plain descriptor: a stream's buffer would be one more allocation and one more copy of
  // every page.
  file_.fd = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
  if (file_.fd < 0) nex_ThrowCmd("the file cannot be read");
  const std::size_t got = ReadAt(file_.fd, bytes, sizeof bytes, 0);
  static const char kMagic[] = "SQLite format 3";
  if (got < dbf_kHeaderSize && std::memcmp(bytes, kMagic, std::min(got, sizeof kMagic)) == 0)
    dbf_Damaged("truncated: it holds " + std::to_string(got) + " of the " + std::to_string(dbf_kHeaderSize) +
            " bytes of its header");
  dbf_Header h;
  if (!dbf_ParseHeader(bytes, got, h))
    nex_ThrowCmd("the file is not a model database (it is not an SQLite database)");
  if (h.applicationId != dbf_kApplicationId)
    nex_ThrowCmd("the file is not a model database (its application id is " + Hex32(h.applicationId) + ", not " +
                 Hex32(dbf_kApplicationId) + ")");
  if (h.userVersion > static_cast<std::uint32_t>(dbf_DatabaseVersion()))
    nex_ThrowCmd(std::string("the file was written by a newer library (database version ") + std::to_string(h.userVersion) +
                 "; this library reads versions up to " + std::to_string(dbf_DatabaseVersion()) + ")");
  if (h.pageSize < 512 || h.pageSize > 65536 || (h.pageSize & (h.pageSize - 1)) != 0)
    dbf_Damaged(std::string("its header gives the page size ") + std::to_string(h.pageSize));
  if (h.reservedBytes != dbf_kChecksumBytes) dbf_Damaged("its pages carry no checksums");
  const std::uintmax_t expected = std::uintmax_t(h.pageCount) * h.pageSize;
  if (h.pageCount != 0 && expected > size)
    dbf_Damaged(std::string("truncated: it holds ") + std::to_string(size) + " of its " + std::to_string(expected) + " bytes");
  if (h.pageCount != 0 && expected < size)
    dbf_Damaged(std::string("it is ") + std::to_string(size - expected) + " bytes longer than its pages");
  if (size % h.pageSize != 0)
    dbf_Damaged(std::string("its ") + std::to_string(size) + " bytes are not a whole number of " +
            std::to_string(h.pageSize) + "-byte pages");
  pageSize_ = h.pageSize;
  pages_ = size / h.pageSize;
}

// Every page, not only those the rows are read from: pages of indexes this library never reads
// would otherwise keep a changed byte unnoticed for the next tool that reads them. Only the
// pages no read of SQLite checked are read here, in runs of up to 64 KiB (a buffer that stays
// in the cache and comes from the heap, not mapped afresh a page fault per 4 KiB each open).
void dbf_Reader::CheckUnreadPages() {
  // SQLite never writes the page that holds the byte at offset 2^30 (its lock byte).
  const std::uintmax_t lockPage = (std::uintmax_t(1) << 30) / pageSize_ + 1;
  const std::uintmax_t perRun = std::max<std::uintmax_t>(1, (std::uintmax_t(1) << 16) / pageSize_);
  std::unique_ptr<unsigned char[]> run(new unsigned char[static_cast<std::size_t>(perRun * pageSize_)]);
  for (std::uintmax_t first = 1; first <= pages_;) {
    if (checked_[first - 1] || first == lockPage) {
      ++first;
      continue;
    }
    std::uintmax_t count = 1;
    while (count < perRun && first + count <= pages_ && !checked_[first + count - 1]) ++count;
    const auto want = static_cast<std::size_t>(count * pageSize_);
    if (ReadAt(file_.fd, run.get(), want, (first - 1) * pageSize_) != want) nex_ThrowCmd("the file cannot be read");
    for (std::uintmax_t k = 0; k < count; ++k) {
      const std::uintmax_t number = first + k;
      if (number == lockPage) continue;
      if (!dbf_PageIntact(run.get() + k * pageSize_, pageSize_, static_cast<std::int64_t>(number)))
        dbf_Damaged(std::string("page ") + std::to_string(number) + " fails its checksum");
    }
    first += count;
  }
}

void dbf_Reader::ReadMeta() {
  std::set<std::string> tables;
  dbf_Statement list(conn_->Get(), "SELECT name FROM sqlite_master WHERE type = 'table'");
  while (list.Step()) tables.emplace(dbf_Text(list.Get(), 0));
  for (const char* own : {dbf_kMetaTable, dbf_kCatalogTable, dbf_kFieldsTable, dbf_kRootsTable})
    if (!tables.count(own)) dbf_Damaged(std::string("it has no table ") + own);

  std::string format, version;
  dbf_Statement meta(conn_->Get(), "SELECT \"key\", \"value\" FROM " + dbf_Quote(dbf_kMetaTable));
  while (meta.Step()) {
    std::string_view key = dbf_Text(meta.Get(), 0);
    if (key == "format") format = dbf_Text(meta.Get(), 1);
    else if (key == "databaseVersion") version = dbf_Text(meta.Get(), 1);
  }
  if (format != dbf_kFormatName) nex_ThrowCmd("the file is not a model database (its format is \"" + format + "\")");
  std::int64_t header = conn_->QueryInt("PRAGMA user_version");
  if (version != std::to_string(header))
    dbf_Damaged("its database version \"" + version + "\" differs from its header's " + std::to_string(header));
  databaseVersion_ = static_cast<int>(header);
}

void dbf_Reader::ReadCatalog() {
  const cls_ClassRegistrar& registrar = cls_ClassRegistrar::Instance();
  dbf_Statement catalog(conn_->Get(), "SELECT \"name\", \"typeId\", \"version\", \"fieldHash\", \"rows\" FROM " +
                                          dbf_Quote(dbf_kCatalogTable) + " ORDER BY rowid");
  // Every class's stored fields in one pass, by class and position; each class then takes its run.
  struct StoredField {
    std::string cls, name;
    int number, type, count, collection;
  };
  std::vector<StoredField> all;
  {
    dbf_Statement fields(conn_->Get(), "SELECT \"class\", \"name\", \"number\", \"type\", \"count\", \"collection\" FROM " +
                                           dbf_Quote(dbf_kFieldsTable) + " ORDER BY \"class\", \"position\"");
    while (fields.Step()) {
      sqlite3_stmt* f = fields.Get();
      all.push_back(StoredField{std::string(dbf_Text(f, 0)), std::string(dbf_Text(f, 1)), sqlite3_column_int(f, 2),
                                sqlite3_column_int(f, 3), sqlite3_column_int(f, 4), sqlite3_column_int(f, 5)});
    }
  }
  auto byClass = [](const StoredField& a, const StoredField& b) { return a.cls < b.cls; };
  while (catalog.Step()) {
    sqlite3_stmt* c = catalog.Get();
    if (sqlite3_column_type(c, 0) != SQLITE_TEXT || sqlite3_column_type(c, 1) != SQLITE_INTEGER ||
        sqlite3_column_type(c, 2) != SQLITE_INTEGER || sqlite3_column_type(c, 3) != SQLITE_TEXT ||
        sqlite3_column_type(c, 4) != SQLITE_INTEGER)
      dbf_Damaged("its catalog holds a malformed entry");
    auto t = std::make_unique<dbf_ReadTable>();
    t->className = dbf_Text(c, 0);
    std::int64_t typeId = sqlite3_column_int64(c, 1);
    std::int64_t version = sqlite3_column_int64(c, 2);
    std::string hash(dbf_Text(c, 3));
    t->rows = sqlite3_column_int64(c, 4);
    if (typeId < 0 || typeId > UINT32_MAX || version < 0 || version > INT32_MAX || t->rows < 0)
      dbf_Damaged("its catalog entry of class " + t->className + " is out of range");
    t->storedTypeId = static_cast<std::uint32_t>(typeId);
    t->storedVersion = static_cast<int>(version);

    t->cls = registrar.ByName(t->className);
    if (!t->cls) {
      // A class of an older version under a name it no longer has, or a part of such classes.
      t->rename = driver_.RenameOf(t->className, t->storedVersion);
      if (!t->rename)
        nex_ThrowCmd("the file holds objects of class " + t->className + ", which this library does not know");
      if (!t->rename->IsPart()) {
        t->cls = registrar.ByName(t->rename->NewName());
        if (!t->cls)
          nex_ThrowCmd("class " + t->className + " is renamed to " + t->rename->NewName() +
                       ", which this library does not know");
      }
    }
    const int current = t->cls ? t->cls->Version() : t->storedVersion;
    if (t->storedVersion > current)
      nex_ThrowCmd("class " + t->className + " is stored at version " + std::to_string(t->storedVersion) +
                   ", newer than this library's version " + std::to_string(current));

    // The stored field table describes the stored columns; its hash guards it.
    std::vector<cls_Attribute> stored;
    int column = 2;
    const StoredField key{t->className, {}, 0, 0, 0, 0};
    const auto [first, last] = std::equal_range(all.begin(), all.end(), key, byClass);
    for (auto it = first; it != last; ++it) {
      dbf_ReadField field;
      field.name = it->name;
      field.type = it->type;
      if (!dbf_KindOf(field.type, field.kind))
        dbf_Damaged("the field \"" + field.name + "\" of class " + t->className + " has an unknown type");
      // Files of this layout keep a repository's keys and elements in dbf_Elements; older files
      // hold them as two lists in the repository's row, read as any other list.
      field.apart = databaseVersion_ >= dbf_kElementsApartVersion && t->cls && t->cls->KeepsElementsApart() &&
                    (field.name == "keys" || field.name == "values");
      field.column = field.apart ? -1 : column;
      if (!field.apart) column += field.kind == dbf_Kind::Object ? 2 : 1;
      t->hasObjects = t->hasObjects || field.kind == dbf_Kind::Object || field.kind == dbf_Kind::ObjectList;
      stored.push_back(
          cls_Attribute{cls_FieldHandle(it->number, field.name.c_str()), field.type, it->count, it->collection});
      t->fields.push_back(std::move(field));
    }
    if (dbf_FieldTableHash(stored) != hash) dbf_Damaged("the stored fields of class " + t->className + " do not match their hash");
    if (t->rename) {
      if (t->cls && !driver_.HasPath(t->rename->NewName(), t->rename->Target(), current))
        nex_ThrowCmd("class " + t->className + " is renamed to " + t->rename->NewName() + " at version " +
                     std::to_string(t->rename->Target()) +
                     ", from which no chain of upgrade steps reaches its current version " + std::to_string(current));
      t->upgrade = t->cls != nullptr;
      if (t->cls && t->rename->Target() != current)
        t->steps = driver_.StepsFor(t->rename->NewName(), t->rename->Target(), current);
    } else if (t->storedVersion == current && hash != dbf_FieldTableHash(t->cls->Attributes()))
      nex_ThrowCmd("the fields of class " + t->className + " differ from the ones stored at its version " +
                   std::to_string(current) + "; a changed field table needs a new class version and an upgrade step");
    if (!t->rename && t->storedVersion < current) {
      if (!driver_.HasPath(t->className, t->storedVersion, current))
        nex_ThrowCmd("class " + t->className + " is stored at version " + std::to_string(t->storedVersion) +
                     ", from which no chain of upgrade steps reaches its current version " + std::to_string(current));
      t->upgrade = true;
      t->steps = driver_.StepsFor(t->className, t->storedVersion, current);
    }
    for (std::size_t i = 0; i < t->fields.size(); ++i) {
      if (t->fields[i].type == cls_AttrEnum) {
        if (t->cls && !t->upgrade) t->fields[i].allowed = dbf_LiteralsOf(*t->cls, t->fields[i].name);
        t->fields[i].literals.reserve(dbf_ReadField::kMaxLiterals);
        t->fields[i].views.reserve(dbf_ReadField::kMaxLiterals);
        t->fields[i].codes.reserve(dbf_ReadField::kMaxLiterals);
      }
      t->fields[i].key = cow_String(t->fields[i].name);
      t->byName.emplace(t->fields[i].name, i);
    }
    if (!byStoredId_.emplace(t->storedTypeId, t.get()).second)
      dbf_Damaged(std::string("two classes of its catalog share the type id ") + std::to_string(t->storedTypeId));
    PrepareTable(*t);
    tables_.push_back(std::move(t));
  }
}

void dbf_Reader::PrepareTable(dbf_ReadTable& t) {
  std::string cols = dbf_Quote(dbf_kOidColumn) + ", " + dbf_Quote(dbf_kUidColumn);
  for (const auto& f : t.fields) {
    if (f.apart) continue;
    if (f.kind == dbf_Kind::Object) cols += ", " + dbf_Quote(f.name + "#OID") + ", " + dbf_Quote(f.name + "#ClassID");
    else cols += ", " + dbf_Quote(f.name);
  }
  const std::string from = " FROM " + dbf_Quote(t.className);
  try {
    t.scan = dbf_Statement(conn_->Get(), "SELECT " + cols + from + " ORDER BY " + dbf_Quote(dbf_kOidColumn));
    // Prepared when a row is first wanted out of order, which most files never need.
    t.pointSql = "SELECT " + cols + from + " WHERE " + dbf_Quote(dbf_kOidColumn) + " = ?1";
    t.lastSql = "SELECT max(" + dbf_Quote(dbf_kOidColumn) + ")" + from;
  } catch (const QMXBasException& e) {
    dbf_Damaged("the table of class " + t.className + " does not hold its stored columns: " + e.what());
  }
}

std::vector<dbf_LoadedRoot> dbf_Reader::LoadRoots(const cls_ClassMetadata* required) {
  struct Entry {
    cow_String name;
    dbf_Ref ref;
  };
  std::vector<Entry> entries;
  dbf_Statement roots(conn_->Get(),
                      "SELECT \"name\", \"OID\", \"ClassID\" FROM " + dbf_Quote(dbf_kRootsTable) + " ORDER BY rowid");
  while (roots.Step()) {
    sqlite3_stmt* s = roots.Get();
    if (sqlite3_column_type(s, 0) != SQLITE_TEXT || sqlite3_column_type(s, 1) != SQLITE_INTEGER ||
        sqlite3_column_type(s, 2) != SQLITE_INTEGER)
      dbf_Damaged("its list of roots holds a malformed entry");
    std::int64_t cls = sqlite3_column_int64(s, 2);
    if (cls < 0 || cls > UINT32_MAX) dbf_Damaged("its list of roots holds a malformed entry");
    Entry e{cow_String(dbf_Text(s, 0)), dbf_Ref{sqlite3_column_int64(s, 1), static_cast<std::uint32_t>(cls)}};
    if (dbf_InvalidUtf8At(e.name.view())) dbf_Damaged("its list of roots holds a name that is not UTF-8");
    // The names the command layer gives models: not empty, no NUL.
    if (e.name.empty()) dbf_Damaged("its list of roots holds an empty name");
    if (e.name.view().find('\0') != std::string_view::npos)
      dbf_Damaged("its list of roots holds a name with a NUL character");
    const dbf_ReadTable& t = TableOf(e.ref.classId);
    if (!t.cls) dbf_Damaged("a root names a row of class " + t.className + ", which is only ever part of other rows");
    if (required && !t.cls->IsA(*required))
      nex_ThrowCmd("the file holds a " + t.className + " under the name \"" + e.name.str() + "\", where a " +
                   required->Name().str() + " belongs");
    entries.push_back(std::move(e));
  }
  std::vector<dbf_LoadedRoot> out;
  out.reserve(entries.size());
  for (const Entry& e : entries) {
    dbf_LoadedRow row;
    Load(e.ref, row);
    dbf_RowReader reader(*this, row);
    const cls_ClassMetadata* cls = row.table->cls;
    out.push_back(dbf_LoadedRoot{e.name, dbf_OwnedObject(cls, cls->NewFromRecord(reader))});
  }
  // Every row was loaded once, and the rest of each scan holds no row beyond the catalog's count. Checked here rather than by a query per table as the file opens.
  for (const auto& t : tables_)
    while (!t->scanDone) {
      t->scanStarted = true;
      if (!t->scan.Step()) {
        t->scanDone = true;
        break;
      }
      t->scanOid = sqlite3_column_int64(t->scan.Get(), 0);
      if (t->scanOid < 1 || ++t->scanned > t->rows) dbf_NotNumbered(*t);
    }
  CheckElementsTaken();
  for (const auto& t : tables_)
    if (t->loaded != t->rows)
      dbf_Damaged(std::to_string(t->rows - t->loaded) + " of the " + std::to_string(t->rows) + " rows of class " +
              t->className + " belong to nothing it holds");
  CheckUnreadPages();
  return out;
}
