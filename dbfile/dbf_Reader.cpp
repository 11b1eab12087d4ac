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
#include "dbfile/dbf_RowReader.h"
#include "dbfile/dbf_Utf8.h"
#include "dbfile/dbf_TableBlob.h"
#include "dbfile/dbf_Vfs.h"
#include "platform/base/nex_Exception.h"

namespace {

[[noreturn]] void Damaged(const std::string& why) { nex_ThrowCmd("the file is damaged (" + why + ")"); }

[[noreturn]] void DamagedField(const dbf_ReadTable& t, std::int64_t oid, const std::string& field, const char* what) {
  Damaged("the field \"" + field + "\" of row " + std::to_string(oid) + " of class " + t.className + " holds " + what);
}

std::string_view Text(sqlite3_stmt* s, int col) {
  const auto* p = reinterpret_cast<const char*>(sqlite3_column_text(s, col));
  return p ? std::string_view(p, static_cast<std::size_t>(sqlite3_column_bytes(s, col))) : std::string_view();
}

std::string_view Text(sqlite3_value* v) {
  const auto* p = reinterpret_cast<const char*>(sqlite3_value_text(v));
  return p ? std::string_view(p, static_cast<std::size_t>(sqlite3_value_bytes(v))) : std::string_view();
}

// The value of each lower-case hex digit, 0xFF for every other byte.
struct HexTable {
  unsigned char value[256];
  constexpr HexTable() : value() {
    for (int c = 0; c < 256; ++c) value[c] = 0xFF;
    for (int c = '0'; c <= '9'; ++c) value[c] = static_cast<unsigned char>(c - '0');
    for (int c = 'a'; c <= 'f'; ++c) value[c] = static_cast<unsigned char>(c - 'a' + 10);
  }
};
constexpr HexTable kHex;

// A uid as its 32 lower-case hex digits; one test for a bad digit at the end, not one per digit,
// and the two halves built side by side in registers.
bool ParseUid(std::string_view t, cls_Uid& out) {
  if (t.size() != 32) return false;
  const auto* p = reinterpret_cast<const unsigned char*>(t.data());
  std::uint64_t high = 0, low = 0;
  unsigned bad = 0;
  for (std::size_t i = 0; i < 16; ++i) {
    const unsigned h = kHex.value[p[i]], l = kHex.value[p[16 + i]];
    bad |= h | l;
    high = (high << 4) | (h & 0xF);
    low = (low << 4) | (l & 0xF);
  }
  if (bad & 0xF0) return false;
  out = cls_Uid(high, low);
  return true;
}

// Whether two texts of one length hold the same bytes, compared a word at a time in place: an
// enumeration literal is matched this way for every row, where a call to memcmp would cost more
// than the comparison.
bool SameBytes(const char* a, const char* b, std::size_t n) noexcept {
  if (n < 8) {
    for (std::size_t i = 0; i < n; ++i)
      if (a[i] != b[i]) return false;
    return true;
  }
  auto word = [](const char* p) {
    std::uint64_t w;
    std::memcpy(&w, p, 8);
    return w;
  };
  for (std::size_t i = 0; i + 8 < n; i += 8)
    if (word(a + i) != word(b + i)) return false;
  return word(a + n - 8) == word(b + n - 8);  // the last word, overlapping the one before
}

[[noreturn]] void NotNumbered(const dbf_ReadTable& t) {
  Damaged("the rows of class " + t.className + " are not numbered 1 to " + std::to_string(t.rows));
}

// Stored text reaches keys, names and JSON dumps; text that is not UTF-8 is damage, not data.
// Checked as rows are loaded, once per value read from the file.
void CheckUtf8(const dbf_ReadTable& t, std::int64_t oid, const dbf_ReadField& f, std::string_view text) {
  if (auto at = dbf_InvalidUtf8At(text)) {
    char hex[8];
    std::snprintf(hex, sizeof hex, "0x%02X", static_cast<unsigned>(static_cast<unsigned char>(text[*at])));
    nex_ThrowCmd("the field \"" + f.name + "\" of row " + std::to_string(oid) + " of class " + t.className +
                 " holds text that is not UTF-8 (byte " + hex + " at offset " + std::to_string(*at) + ")");
  }
}

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
    Damaged("truncated: it holds " + std::to_string(got) + " of the " + std::to_string(dbf_kHeaderSize) +
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
    Damaged(std::string("its header gives the page size ") + std::to_string(h.pageSize));
  if (h.reservedBytes != dbf_kChecksumBytes) Damaged("its pages carry no checksums");
  const std::uintmax_t expected = std::uintmax_t(h.pageCount) * h.pageSize;
  if (h.pageCount != 0 && expected > size)
    Damaged(std::string("truncated: it holds ") + std::to_string(size) + " of its " + std::to_string(expected) + " bytes");
  if (h.pageCount != 0 && expected < size)
    Damaged(std::string("it is ") + std::to_string(size - expected) + " bytes longer than its pages");
  if (size % h.pageSize != 0)
    Damaged(std::string("its ") + std::to_string(size) + " bytes are not a whole number of " +
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
        Damaged(std::string("page ") + std::to_string(number) + " fails its checksum");
    }
    first += count;
  }
}

void dbf_Reader::ReadMeta() {
  std::set<std::string> tables;
  dbf_Statement list(conn_->Get(), "SELECT name FROM sqlite_master WHERE type = 'table'");
  while (list.Step()) tables.emplace(Text(list.Get(), 0));
  for (const char* own : {dbf_kMetaTable, dbf_kCatalogTable, dbf_kFieldsTable, dbf_kRootsTable})
    if (!tables.count(own)) Damaged(std::string("it has no table ") + own);

  std::string format, version;
  dbf_Statement meta(conn_->Get(), "SELECT \"key\", \"value\" FROM " + dbf_Quote(dbf_kMetaTable));
  while (meta.Step()) {
    std::string_view key = Text(meta.Get(), 0);
    if (key == "format") format = Text(meta.Get(), 1);
    else if (key == "databaseVersion") version = Text(meta.Get(), 1);
  }
  if (format != dbf_kFormatName) nex_ThrowCmd("the file is not a model database (its format is \"" + format + "\")");
  std::int64_t header = conn_->QueryInt("PRAGMA user_version");
  if (version != std::to_string(header))
    Damaged("its database version \"" + version + "\" differs from its header's " + std::to_string(header));
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
      all.push_back(StoredField{std::string(Text(f, 0)), std::string(Text(f, 1)), sqlite3_column_int(f, 2),
                                sqlite3_column_int(f, 3), sqlite3_column_int(f, 4), sqlite3_column_int(f, 5)});
    }
  }
  auto byClass = [](const StoredField& a, const StoredField& b) { return a.cls < b.cls; };
  while (catalog.Step()) {
    sqlite3_stmt* c = catalog.Get();
    if (sqlite3_column_type(c, 0) != SQLITE_TEXT || sqlite3_column_type(c, 1) != SQLITE_INTEGER ||
        sqlite3_column_type(c, 2) != SQLITE_INTEGER || sqlite3_column_type(c, 3) != SQLITE_TEXT ||
        sqlite3_column_type(c, 4) != SQLITE_INTEGER)
      Damaged("its catalog holds a malformed entry");
    auto t = std::make_unique<dbf_ReadTable>();
    t->className = Text(c, 0);
    std::int64_t typeId = sqlite3_column_int64(c, 1);
    std::int64_t version = sqlite3_column_int64(c, 2);
    std::string hash(Text(c, 3));
    t->rows = sqlite3_column_int64(c, 4);
    if (typeId < 0 || typeId > UINT32_MAX || version < 0 || version > INT32_MAX || t->rows < 0)
      Damaged("its catalog entry of class " + t->className + " is out of range");
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
        Damaged("the field \"" + field.name + "\" of class " + t->className + " has an unknown type");
      field.column = column;
      column += field.kind == dbf_Kind::Object ? 2 : 1;
      t->hasObjects = t->hasObjects || field.kind == dbf_Kind::Object || field.kind == dbf_Kind::ObjectList;
      stored.push_back(
          cls_Attribute{cls_FieldHandle(it->number, field.name.c_str()), field.type, it->count, it->collection});
      t->fields.push_back(std::move(field));
    }
    if (dbf_FieldTableHash(stored) != hash) Damaged("the stored fields of class " + t->className + " do not match their hash");
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
        t->fields[i].literals.reserve(dbf_ReadField::kMaxLiterals);
        t->fields[i].views.reserve(dbf_ReadField::kMaxLiterals);
        t->fields[i].codes.reserve(dbf_ReadField::kMaxLiterals);
      }
      t->fields[i].key = cow_String(t->fields[i].name);
      t->byName.emplace(t->fields[i].name, i);
    }
    if (!byStoredId_.emplace(t->storedTypeId, t.get()).second)
      Damaged(std::string("two classes of its catalog share the type id ") + std::to_string(t->storedTypeId));
    PrepareTable(*t);
    tables_.push_back(std::move(t));
  }
}

void dbf_Reader::PrepareTable(dbf_ReadTable& t) {
  std::string cols = dbf_Quote(dbf_kOidColumn) + ", " + dbf_Quote(dbf_kUidColumn);
  for (const auto& f : t.fields) {
    if (f.kind == dbf_Kind::Object) cols += ", " + dbf_Quote(f.name + "#OID") + ", " + dbf_Quote(f.name + "#ClassID");
    else cols += ", " + dbf_Quote(f.name);
  }
  const std::string from = " FROM " + dbf_Quote(t.className);
  try {
    t.scan = dbf_Statement(conn_->Get(), "SELECT " + cols + from + " ORDER BY " + dbf_Quote(dbf_kOidColumn));
    // Prepared when a row is first wanted out of order, which most files never need.
    t.pointSql = "SELECT " + cols + from + " WHERE " + dbf_Quote(dbf_kOidColumn) + " = ?1";
  } catch (const QMXBasException& e) {
    Damaged("the table of class " + t.className + " does not hold its stored columns: " + e.what());
  }
}

bool dbf_Reader::MarkLoaded(dbf_ReadTable& t, std::int64_t oid) {
  const auto i = static_cast<std::size_t>(oid);
  if (i >= t.seen.size() && i <= 2 * t.seen.size() + 4096) t.seen.resize(std::max(i + 1, 2 * t.seen.size()), 0);
  if (i < t.seen.size()) {
    if (t.seen[i] || (!t.seenSparse.empty() && t.seenSparse.count(oid))) return false;
    t.seen[i] = 1;
    return true;
  }
  return t.seenSparse.insert(oid).second;
}

dbf_Reader::Nesting::Nesting(dbf_Reader& r) : reader_(r) {
  if (++reader_.depth_ > kMaxDepth) {
    --reader_.depth_;
    Damaged(std::string("its objects nest more than ") + std::to_string(kMaxDepth) + " levels deep");
  }
}

dbf_ReadTable& dbf_Reader::TableOf(std::uint32_t storedClassId) const {
  // The elements of a repository come one class after another: the last table found is tried first.
  if (lastTable_ && lastTable_->storedTypeId == storedClassId) return *lastTable_;
  auto it = byStoredId_.find(storedClassId);
  if (it == byStoredId_.end()) Damaged(std::string("it refers to class id ") + std::to_string(storedClassId) + ", which its catalog lacks");
  return *(lastTable_ = it->second);
}

unsigned dbf_Reader::CurrentTypeId(std::uint32_t storedClassId) const {
  const dbf_ReadTable& t = TableOf(storedClassId);
  if (!t.cls) Damaged("an object refers to a row of class " + t.className + ", which is only ever part of other rows");
  return t.cls->TypeId();
}

sqlite3_stmt* dbf_Reader::Position(dbf_ReadTable& t, std::int64_t oid) {
  if (!t.scanDone && (!t.scanStarted || t.scanOid < oid)) {
    t.scanStarted = true;
    while (true) {
      if (!t.scan.Step()) {
        t.scanDone = true;
        break;
      }
      t.scanOid = sqlite3_column_int64(t.scan.Get(), 0);
      if (t.scanOid < 1 || t.scanOid > t.rows) NotNumbered(t);
      if (t.scanOid >= oid) break;
    }
  }
  if (!t.scanDone && t.scanOid == oid) return t.scan.Get();
  if (!t.point.Get()) t.point = dbf_Statement(conn_->Get(), t.pointSql);
  t.point.Reset();
  sqlite3_bind_int64(t.point.Get(), 1, oid);
  return t.point.Step() ? t.point.Get() : nullptr;
}

void dbf_Reader::Load(const dbf_Ref& ref, dbf_LoadedRow& row) {
  dbf_ReadTable& t = TableOf(ref.classId);
  if (!t.cls) Damaged("an object refers to a row of class " + t.className + ", which is only ever part of other rows");
  if (ref.oid < 1 || ref.oid > t.rows)
    Damaged(std::string("it refers to row ") + std::to_string(ref.oid) + " of class " + t.className + ", which holds " +
            std::to_string(t.rows) + " rows");
  if (!MarkLoaded(t, ref.oid))
    Damaged(std::string("row ") + std::to_string(ref.oid) + " of class " + t.className + " is held twice");
  ++t.loaded;
  sqlite3_stmt* s = Position(t, ref.oid);
  if (!s) Damaged(std::string("row ") + std::to_string(ref.oid) + " of class " + t.className + " is missing");
  row.table = &t;
  row.oid = ref.oid;
  if (row.upgraded) row.spare = std::move(row.upgraded);
  if (sqlite3_column_type(s, 1) != SQLITE_TEXT || !ParseUid(Text(s, 1), row.uid))
    DamagedField(t, ref.oid, dbf_kUidColumn, "no uid");
  Extract(t, s, row);
  if (t.rename) Rename(row);
  else if (t.upgrade) Upgrade(row);
}

cls_Record dbf_Reader::RawRecord(const dbf_LoadedRow& row) {
  const dbf_ReadTable& t = *row.table;
  cls_Record rec;
  rec.typeId = t.storedTypeId;
  rec.uid = row.uid;
  for (std::size_t i = 0; i < t.fields.size(); ++i) {
    const dbf_ReadField& f = t.fields[i];
    if (f.kind == dbf_Kind::Object) {
      const dbf_Ref& ref = row.refs[row.spans[i].first];
      rec.fields.emplace_back(f.name + "#OID", ref.oid ? cls_Value(static_cast<std::int32_t>(ref.oid)) : cls_Value());
      rec.fields.emplace_back(f.name + "#ClassID",
                              ref.oid ? cls_Value(static_cast<std::int32_t>(ref.classId)) : cls_Value());
    } else if (f.kind == dbf_Kind::ObjectList) {
      std::vector<std::int32_t> oids, ids;
      for (std::uint32_t k = 0; k < row.spans[i].second; ++k) {
        const dbf_Ref& ref = row.refs[row.spans[i].first + k];
        oids.push_back(static_cast<std::int32_t>(ref.oid));
        ids.push_back(static_cast<std::int32_t>(ref.classId));
      }
      rec.fields.emplace_back(f.name + "#OID", std::move(oids));
      rec.fields.emplace_back(f.name + "#ClassID", std::move(ids));
    } else {
      rec.fields.emplace_back(f.name, ValueOf(row, i));
    }
  }
  return rec;
}

std::shared_ptr<const cls_Record> dbf_Reader::FetchRaw(dbf_ReadTable& t, std::int64_t oid) {
  if (oid < 1 || oid > t.rows) return nullptr;
  if (!MarkLoaded(t, oid))
    Damaged(std::string("row ") + std::to_string(oid) + " of class " + t.className + " is held twice");
  ++t.loaded;
  sqlite3_stmt* s = Position(t, oid);
  if (!s) return nullptr;
  dbf_LoadedRow row;
  row.table = &t;
  row.oid = oid;
  if (sqlite3_column_type(s, 1) != SQLITE_TEXT || !ParseUid(Text(s, 1), row.uid))
    DamagedField(t, oid, dbf_kUidColumn, "no uid");
  Extract(t, s, row);
  return std::make_shared<const cls_Record>(RawRecord(row));
}

// The other rows of the file, as a conversion that renames a class sees them.
class dbf_Reader::Source final : public dbc_RowSource {
 public:
  Source(dbf_Reader& reader, dbf_LoadedRow::Upgraded& up) : reader_(reader), up_(up) {}
  std::shared_ptr<const cls_Record> Fetch(std::uint32_t classId, std::int64_t oid) override {
    auto it = reader_.byStoredId_.find(classId);
    return it == reader_.byStoredId_.end() ? nullptr : reader_.FetchRaw(*it->second, oid);
  }
  std::shared_ptr<const cls_Record> FetchByName(const std::string& className, std::int64_t oid) override {
    for (const auto& t : reader_.tables_)
      if (t->className == className) return reader_.FetchRaw(*t, oid);
    return nullptr;
  }
  std::string ClassName(std::uint32_t classId) const override {
    auto it = reader_.byStoredId_.find(classId);
    return it == reader_.byStoredId_.end() ? std::string() : it->second->className;
  }
  cls_RecordPtr Reference(std::uint32_t classId, std::int64_t oid) override {
    auto rec = std::make_shared<cls_Record>();
    rec->typeId = reader_.CurrentTypeId(classId);
    up_.stubs.emplace(rec.get(), std::pair{cls_RecordPtr(rec), dbf_Ref{oid, classId}});
    return rec;
  }

 private:
  dbf_Reader& reader_;
  dbf_LoadedRow::Upgraded& up_;
};

void dbf_Reader::Rename(dbf_LoadedRow& row) {
  dbf_ReadTable& t = *row.table;
  const cls_Record old = RawRecord(row);
  auto up = Reuse(row);
  up->record.fields.clear();  // the rename's conversion builds the row from nothing
  up->record.typeId = t.cls->TypeId();
  up->record.uid = row.uid;
  Source source(*this, *up);
  dbc_Row oldRow(old);
  oldRow.SetSource(&source);
  dbc_Row newRow(up->record);
  newRow.SetSource(&source);
  if (dbc_ConversionFn fn = t.rename->Function()) fn(oldRow, newRow, t.rename->Arg());
  dbc_UpgradeDriver::Run(t.steps, up->record, up->scratch);
  row.upgraded = std::move(up);
}

void dbf_Reader::Extract(dbf_ReadTable& t, sqlite3_stmt* s, dbf_LoadedRow& row) {
  const std::size_t n = t.fields.size();
  row.cells.resize(n);
  row.texts.resize(n);
  row.values.resize(n);
  row.refs.clear();
  if (t.hasObjects) row.spans.assign(n, {0, 0});
  for (std::size_t i = 0; i < n; ++i) {
    dbf_ReadField& f = t.fields[i];
    const int col = f.column;
    // One value per column, its type and contents read from it: the connection is opened without
    // a mutex, so the column's value needs no protected copy.
    sqlite3_value* cv = sqlite3_column_value(s, col);
    const int type = sqlite3_value_type(cv);
    cls_ReadCell& c = row.cells[i];
    switch (f.kind) {
      case dbf_Kind::Int: {
        std::int64_t x = sqlite3_value_int64(cv);
        if (type != SQLITE_INTEGER || x < INT32_MIN || x > INT32_MAX) DamagedField(t, row.oid, f.name, "no 32-bit integer");
        c.integer = x;
        break;
      }
      case dbf_Kind::Double:
        if (type == SQLITE_FLOAT || type == SQLITE_INTEGER) c.number = sqlite3_value_double(cv);
        else if (type == SQLITE_NULL) c.number = std::numeric_limits<double>::quiet_NaN();
        else DamagedField(t, row.oid, f.name, "no number");
        break;
      case dbf_Kind::Bool: {
        std::int64_t x = sqlite3_value_int64(cv);
        if (type != SQLITE_INTEGER || (x != 0 && x != 1)) DamagedField(t, row.oid, f.name, "no boolean");
        c.integer = x;
        break;
      }
      case dbf_Kind::Text: {
        if (type != SQLITE_TEXT) DamagedField(t, row.oid, f.name, "no text");
        std::string_view text = Text(cv);
        c.code = nullptr;
        if (f.type == cls_AttrEnum) {
          // Enumeration literals repeat from row to row: one string per literal, shared.
          std::size_t k = 0;
          const std::size_t known = f.views.size();
          while (k < known && !(f.views[k].size() == text.size() && SameBytes(f.views[k].data(), text.data(), text.size())))
            ++k;
          if (k == known) {
            CheckUtf8(t, row.oid, f, text);  // a literal met again was checked when first met
            if (k < dbf_ReadField::kMaxLiterals) {
              f.literals.emplace_back(text);
              f.views.push_back(f.literals.back().view());  // the body stays where it is
              f.codes.emplace_back();
            }
          }
          if (k < f.literals.size()) {
            c.text = &f.literals[k];
            c.code = &f.codes[k];
            break;
          }
        } else {
          CheckUtf8(t, row.oid, f, text);
        }
        row.texts[i] = cow_String(text);
        c.text = &row.texts[i];
        break;
      }
      case dbf_Kind::Table: {
        cow_2DArray<double> table;
        if (type != SQLITE_BLOB ||
            !dbf_DecodeTable(sqlite3_value_blob(cv), static_cast<std::size_t>(sqlite3_value_bytes(cv)), table))
          DamagedField(t, row.oid, f.name, "no table of doubles");
        row.values[i] = std::move(table);
        c.value = &row.values[i];
        break;
      }
      case dbf_Kind::Object: {
        const int ctype = sqlite3_column_type(s, col + 1);
        dbf_Ref ref;
        if (type == SQLITE_INTEGER && ctype == SQLITE_INTEGER) {
          ref.oid = sqlite3_value_int64(cv);
          std::int64_t cls = sqlite3_column_int64(s, col + 1);
          if (ref.oid < 1 || cls < 0 || cls > UINT32_MAX) DamagedField(t, row.oid, f.name, "a malformed reference");
          ref.classId = static_cast<std::uint32_t>(cls);
        } else if (type != SQLITE_NULL || ctype != SQLITE_NULL) {
          DamagedField(t, row.oid, f.name, "a malformed reference");
        }
        row.spans[i] = {static_cast<std::uint32_t>(row.refs.size()), 1};
        row.refs.push_back(ref);
        break;
      }
      default: {  // lists, stored as JSON text
        if (type != SQLITE_TEXT) DamagedField(t, row.oid, f.name, "no list text");
        std::string_view text = Text(cv);
        cls_Value& v = row.values[i];
        c.value = &v;
        bool ok = false;
        switch (f.kind) {
          case dbf_Kind::IntList: ok = dbf_ParseIntList(text, v.emplace<std::vector<std::int32_t>>()); break;
          case dbf_Kind::DoubleList: ok = dbf_ParseDoubleList(text, v.emplace<std::vector<double>>()); break;
          case dbf_Kind::BoolList: ok = dbf_ParseBoolList(text, v.emplace<std::vector<bool>>()); break;
          case dbf_Kind::TextList:
            ok = dbf_ParseTextList(text, v.emplace<std::vector<cow_String>>());
            // Without escapes every element is a piece of the text between two quotes, so one pass
            // over valid text clears them all; otherwise each is checked, and the first bad one named.
            if (ok && (text.find('\\') != std::string_view::npos || dbf_InvalidUtf8At(text)))
              for (const cow_String& e : std::get<std::vector<cow_String>>(v)) CheckUtf8(t, row.oid, f, e.view());
            break;
          default: {
            // The first list of a row is parsed straight into the row's references.
            if (row.refs.empty()) {
              ok = dbf_ParseRefList(text, row.refs);
              row.spans[i] = {0, static_cast<std::uint32_t>(row.refs.size())};
            } else {
              std::vector<dbf_Ref> refs;
              ok = dbf_ParseRefList(text, refs);
              row.spans[i] = {static_cast<std::uint32_t>(row.refs.size()), static_cast<std::uint32_t>(refs.size())};
              row.refs.insert(row.refs.end(), refs.begin(), refs.end());
            }
            v = std::monostate{};
            c.value = nullptr;
          }
        }
        if (!ok) DamagedField(t, row.oid, f.name, "malformed list text");
      }
    }
  }
}

cls_Value dbf_Reader::ValueOf(const dbf_LoadedRow& row, std::size_t i) {
  cls_Value v;
  AssignValue(row, i, v);
  return v;
}

void dbf_Reader::AssignValue(const dbf_LoadedRow& row, std::size_t i, cls_Value& out) {
  const cls_ReadCell& c = row.cells[i];
  switch (row.table->fields[i].kind) {
    case dbf_Kind::Int: out = static_cast<std::int32_t>(c.integer); return;
    case dbf_Kind::Double: out = c.number; return;
    case dbf_Kind::Bool: out = c.integer != 0; return;
    case dbf_Kind::Text:
      if (auto* text = std::get_if<cow_String>(&out)) *text = *c.text;
      else out = *c.text;
      return;
    default: out = row.values[i]; return;
  }
}

bool dbf_Reader::Positional(dbf_ReadTable& t, const cls_FieldLayout& layout) {
  for (const auto& [known, matches] : t.layouts)
    if (known == &layout) return matches;
  bool matches = !t.upgrade && !t.rename && t.fields.size() == layout.count;
  for (std::size_t i = 0; matches && i < layout.count; ++i)
    matches = t.fields[i].type == layout.types[i] && t.fields[i].name == layout.names[i];
  t.layouts.emplace_back(&layout, matches);
  return matches;
}

// The row as a record at its stored version, member objects as stub records of their classes,
// carried through the conversions to the class's current version.
void dbf_Reader::Upgrade(dbf_LoadedRow& row) {
  dbf_ReadTable& t = *row.table;
  auto up = Reuse(row);
  up->record.typeId = t.cls->TypeId();
  up->record.uid = row.uid;
  // The fields go into the slots the last row left, by assignment: the names and most values
  // are the bodies those slots already hold, so copying them changes no reference counts.
  auto& fields = up->record.fields;
  fields.resize(t.fields.size());
  auto stub = [&](const dbf_Ref& ref) -> cls_RecordPtr {
    if (ref.oid == 0) return nullptr;
    auto rec = std::make_shared<cls_Record>();
    rec->typeId = CurrentTypeId(ref.classId);
    up->stubs.emplace(rec.get(), std::pair{cls_RecordPtr(rec), ref});
    return rec;
  };
  for (std::size_t i = 0; i < t.fields.size(); ++i) {
    const dbf_ReadField& f = t.fields[i];
    fields[i].first = f.key;
    cls_Value& v = fields[i].second;
    if (f.kind == dbf_Kind::Object) {
      cls_RecordPtr p = stub(row.refs[row.spans[i].first]);
      v = p ? cls_Value(p) : cls_Value();
    } else if (f.kind == dbf_Kind::ObjectList) {
      std::vector<cls_RecordPtr> list;
      for (std::uint32_t k = 0; k < row.spans[i].second; ++k) list.push_back(stub(row.refs[row.spans[i].first + k]));
      v = std::move(list);
    } else {
      AssignValue(row, i, v);
    }
  }
  dbc_UpgradeDriver::Run(t.steps, up->record, up->scratch);
  row.upgraded = std::move(up);
}

std::unique_ptr<dbf_LoadedRow::Upgraded> dbf_Reader::Reuse(dbf_LoadedRow& row) {
  if (!row.spare) return std::make_unique<dbf_LoadedRow::Upgraded>();
  std::unique_ptr<dbf_LoadedRow::Upgraded> up = std::move(row.spare);
  up->stubs.clear();
  return up;
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
      Damaged("its list of roots holds a malformed entry");
    std::int64_t cls = sqlite3_column_int64(s, 2);
    if (cls < 0 || cls > UINT32_MAX) Damaged("its list of roots holds a malformed entry");
    Entry e{cow_String(Text(s, 0)), dbf_Ref{sqlite3_column_int64(s, 1), static_cast<std::uint32_t>(cls)}};
    if (dbf_InvalidUtf8At(e.name.view())) Damaged("its list of roots holds a name that is not UTF-8");
    const dbf_ReadTable& t = TableOf(e.ref.classId);
    if (!t.cls) Damaged("a root names a row of class " + t.className + ", which is only ever part of other rows");
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
  // Rows are numbered 1..rows: every one was loaded once, and the rest of each scan holds no
  // row beyond them. Checked here rather than by a query per table as the file opens.
  for (const auto& t : tables_)
    while (!t->scanDone) {
      t->scanStarted = true;
      if (!t->scan.Step()) {
        t->scanDone = true;
        break;
      }
      t->scanOid = sqlite3_column_int64(t->scan.Get(), 0);
      if (t->scanOid < 1 || t->scanOid > t->rows) NotNumbered(*t);
    }
  for (const auto& t : tables_)
    if (t->loaded != t->rows)
      Damaged(std::to_string(t->rows - t->loaded) + " of the " + std::to_string(t->rows) + " rows of class " +
              t->className + " belong to nothing it holds");
  CheckUnreadPages();
  return out;
}
