#include "dbfile/dbf_Writer.h"

#include <cctype>

#include "platform/persist/cls_ClassRegistrar.h"
#include "dbfile/dbf_Patch.h"
#include "dbfile/dbf_RowWriter.h"
#include "platform/base/nex_Exception.h"

namespace {

bool SameIgnoringCase(std::string_view a, std::string_view b) {
  if (a.size() != b.size()) return false;
  for (std::size_t i = 0; i < a.size(); ++i)
    if (std::tolower(static_cast<unsigned char>(a[i])) != std::tolower(static_cast<unsigned char>(b[i]))) return false;
  return true;
}

void BindText(sqlite3_stmt* s, int i, std::string_view t) {
  sqlite3_bind_text(s, i, t.data(), static_cast<int>(t.size()), SQLITE_TRANSIENT);
}

}  // namespace

dbf_Writer::dbf_Writer(sqlite3* db, const Progress* progress, dbf_Patch* patch)
    : db_(db), patch_(patch), progress_(progress), elements_(db) {
  if (patch_) {
    insertRoot_ =
        dbf_Statement(db_, "INSERT OR REPLACE INTO " + dbf_Quote(dbf_kRootsTable) + " VALUES (?1, ?2, ?3)");
    return;
  }
  const std::string own[] = {
      "CREATE TABLE " + dbf_Quote(dbf_kMetaTable) + " (\"key\" TEXT PRIMARY KEY, \"value\" TEXT NOT NULL)",
      "CREATE TABLE " + dbf_Quote(dbf_kCatalogTable) +
          " (\"name\" TEXT PRIMARY KEY, \"typeId\" INTEGER NOT NULL, \"version\" INTEGER NOT NULL,"
          " \"fieldHash\" TEXT NOT NULL, \"rows\" INTEGER NOT NULL)",
      "CREATE TABLE " + dbf_Quote(dbf_kFieldsTable) +
          " (\"class\" TEXT NOT NULL, \"position\" INTEGER NOT NULL, \"name\" TEXT NOT NULL,"
          " \"number\" INTEGER NOT NULL, \"type\" INTEGER NOT NULL, \"typeName\" TEXT NOT NULL,"
          " \"count\" INTEGER NOT NULL, \"collection\" INTEGER NOT NULL, PRIMARY KEY (\"class\", \"position\"))",
      "CREATE TABLE " + dbf_Quote(dbf_kRootsTable) +
          " (\"name\" TEXT PRIMARY KEY, \"OID\" INTEGER NOT NULL, \"ClassID\" INTEGER NOT NULL)",
  };
  for (const auto& sql : own) dbf_Statement(db_, sql).Run();
  dbf_ElementRows::CreateTable(db_);
  insertRoot_ = dbf_Statement(db_, "INSERT INTO " + dbf_Quote(dbf_kRootsTable) + " VALUES (?1, ?2, ?3)");
}

dbf_Writer::~dbf_Writer() = default;

dbf_RowWriter& dbf_Writer::WriterAt(std::size_t depth) {
  while (writers_.size() <= depth) writers_.push_back(std::make_unique<dbf_RowWriter>(*this, writers_.size()));
  return *writers_[depth];
}

void dbf_Writer::RowStored() {
  ++rows_;
  if (progress_) (*progress_)("row", rows_);
}

void dbf_Writer::WriteRoot(const cow_String& name, const cls_ClassMetadata& cls, const void* object) {
  // The names a file may hold are the ones opening takes back.
  if (name.empty()) nex_ThrowCmd("a model has an empty name");
  if (const std::size_t at = name.view().find('\0'); at != std::string_view::npos)
    nex_ThrowCmd("a model name holds a NUL character (at offset " + std::to_string(at) + ")");
  dbf_RowWriter& w = WriterAt(0);
  const dbf_Stored* old = patch_ ? patch_->OldRoot(name) : nullptr;
  if (old && old->ptr == object) return;  // stored as it is
  if (old) w.Expect(*old);
  cls.Write(object, w);
  dbf_Ref ref = w.Finish();
  if (old && old->ref.oid == ref.oid && old->ref.classId == ref.classId) return;
  WriteRootRow(name, ref);
}

void dbf_Writer::WriteRootRow(const cow_String& name, const dbf_Ref& ref) {
  sqlite3_stmt* s = insertRoot_.Get();
  BindText(s, 1, name.view());
  sqlite3_bind_int64(s, 2, ref.oid);
  sqlite3_bind_int64(s, 3, ref.classId);
  insertRoot_.Run();
}

dbf_WriteTable& dbf_Writer::TableFor(unsigned typeId) {
  if (last_ && last_->cls->TypeId() == typeId) return *last_;
  auto it = byTypeId_.find(typeId);
  if (it != byTypeId_.end()) return *(last_ = it->second);
  const cls_ClassMetadata* cls = cls_ClassRegistrar::Instance().ByTypeId(typeId);
  if (!cls) nex_ThrowCmd(std::string("an object of type id ") + std::to_string(typeId) + " belongs to no registered class");
  dbf_WriteTable& t = CreateTable(*cls);
  byTypeId_.emplace(typeId, &t);
  return *(last_ = &t);
}

dbf_WriteTable& dbf_Writer::CreateTable(const cls_ClassMetadata& cls) {
  auto table = std::make_unique<dbf_WriteTable>();
  table->cls = &cls;
  const std::string className = cls.Name().str();
  std::string columns = dbf_Quote(dbf_kOidColumn) + " INTEGER PRIMARY KEY, " + dbf_Quote(dbf_kUidColumn) + " TEXT NOT NULL";
  std::string names = dbf_Quote(dbf_kOidColumn) + ", " + dbf_Quote(dbf_kUidColumn);
  int param = 3;
  table->fields.reserve(cls.Attributes().size());
  for (const cls_Attribute& a : cls.Attributes()) {
    std::string name = a.handle.Name().str();
    dbf_Kind kind;
    if (!dbf_KindOf(a.type, kind))
      nex_ThrowCmd("the field \"" + name + "\" of class " + className + " has attribute type " + std::to_string(a.type) +
                   ", which the database file cannot store");
    if (name.empty() || name.find('#') != std::string::npos || SameIgnoringCase(name, dbf_kOidColumn) ||
        SameIgnoringCase(name, dbf_kUidColumn))
      nex_ThrowCmd("class " + className + " has a field named \"" + name +
                   "\", which cannot be a column of its table (empty, \"#\", or the OID or UID column)");
    for (const auto& f : table->fields)
      if (SameIgnoringCase(f.name, name))
        nex_ThrowCmd("the fields \"" + f.name + "\" and \"" + name + "\" of class " + className +
                     " would share one column (SQLite column names ignore case)");
    // A repository's keys and elements are rows of dbf_Elements, not columns of its own table.
    const bool apart = cls.KeepsElementsApart() && (name == "keys" || name == "values");
    if (apart) {
      table->fields.push_back(dbf_WriteField{std::move(name), kind, 0, true});
      table->plain.push_back(false);
      continue;
    }
    if (kind == dbf_Kind::Object) {
      columns += ", " + dbf_Quote(name + "#OID") + " INTEGER, " + dbf_Quote(name + "#ClassID") + " INTEGER";
      names += ", " + dbf_Quote(name + "#OID") + ", " + dbf_Quote(name + "#ClassID");
    } else {
      columns += ", " + dbf_Quote(name) + " " + dbf_SqlType(kind);
      names += ", " + dbf_Quote(name);
    }
    table->fields.push_back(dbf_WriteField{std::move(name), kind, param});
    table->plain.push_back(kind == dbf_Kind::Int || kind == dbf_Kind::Double || kind == dbf_Kind::Bool ||
                           kind == dbf_Kind::Text);
    param += kind == dbf_Kind::Object ? 2 : 1;
  }
  for (std::size_t i = 0; i < table->fields.size(); ++i) table->byName.emplace(table->fields[i].name, i);
  std::string values;
  for (int i = 1; i < param; ++i) values += (i > 1 ? ", ?" : "?") + std::to_string(i);
  const dbf_Patch::CatalogRow* stored = patch_ ? patch_->Catalog(className) : nullptr;
  if (stored) {
    // Rows written over keep their OID; new rows come after every stored one.
    table->created = false;
    table->rows = stored->rows;
    dbf_Statement last(db_, "SELECT max(" + dbf_Quote(dbf_kOidColumn) + ") FROM " + dbf_Quote(className));
    last.Step();
    table->nextOid = sqlite3_column_int64(last.Get(), 0) + 1;
  } else {
    dbf_Statement(db_, "CREATE TABLE " + dbf_Quote(className) + " (" + columns + ")").Run();
  }
  table->insert = dbf_Statement(db_, std::string(patch_ ? "INSERT OR REPLACE INTO " : "INSERT INTO ") +
                                         dbf_Quote(className) + " (" + names + ") VALUES (" + values + ")");
  tables_.push_back(std::move(table));
  return *tables_.back();
}

void dbf_Writer::Finish(int databaseVersion, const char* libraryVersion) {
  if (patch_) DropUnclaimedRoots();
  // A patch rewrites the catalog rows of the tables it touched; the rest stay true as stored.
  const std::string verb = patch_ ? "INSERT OR REPLACE INTO " : "INSERT INTO ";
  dbf_Statement catalog(db_, verb + dbf_Quote(dbf_kCatalogTable) + " VALUES (?1, ?2, ?3, ?4, ?5)");
  dbf_Statement fields(db_, "INSERT INTO " + dbf_Quote(dbf_kFieldsTable) + " VALUES (?1, ?2, ?3, ?4, ?5, ?6, ?7, ?8)");
  for (const auto& t : tables_) {
    if (patch_ && !t->touched) continue;
    const cls_ClassMetadata& cls = *t->cls;
    sqlite3_stmt* c = catalog.Get();
    BindText(c, 1, cls.Name().view());
    sqlite3_bind_int64(c, 2, cls.TypeId());
    sqlite3_bind_int64(c, 3, cls.Version());
    BindText(c, 4, dbf_FieldTableHash(cls.Attributes()));
    sqlite3_bind_int64(c, 5, t->rows);
    catalog.Run();
    if (!t->created) continue;
    int position = 0;
    for (const cls_Attribute& a : cls.Attributes()) {
      sqlite3_stmt* f = fields.Get();
      BindText(f, 1, cls.Name().view());
      sqlite3_bind_int(f, 2, position++);
      BindText(f, 3, a.handle.Name().view());
      sqlite3_bind_int(f, 4, a.handle.Number());
      sqlite3_bind_int(f, 5, a.type);
      BindText(f, 6, cls_AttrTypeName(a.type));
      sqlite3_bind_int(f, 7, a.count);
      sqlite3_bind_int(f, 8, a.collection);
      fields.Run();
    }
  }
  if (!patch_) dbf_ElementRows::BuildIndex(db_);  // once, over every element, rather than row by row
  if (patch_ && rows_ == 0 && patch_->Deleted() == 0 && elements_.Changed() == 0)
    return;  // nothing changed: the file stays as it is
  dbf_Statement meta(db_, verb + dbf_Quote(dbf_kMetaTable) + " VALUES (?1, ?2)");
  const std::pair<const char*, std::string> entries[] = {
      {"format", dbf_kFormatName},
      {"databaseVersion", std::to_string(databaseVersion)},
      {"libraryVersion", libraryVersion},
  };
  for (const auto& [key, value] : entries) {
    BindText(meta.Get(), 1, key);
    BindText(meta.Get(), 2, value);
    meta.Run();
  }
  if (patch_) return;  // the file's identity and version are today's (dbf_Patch checked)
  dbf_Statement(db_, std::string("PRAGMA user_version = ") + std::to_string(databaseVersion)).Run();
  dbf_Statement(db_, std::string("PRAGMA application_id = ") + std::to_string(static_cast<std::int32_t>(dbf_kApplicationId))).Run();
}

void dbf_Writer::DropUnclaimedRoots() {
  dbf_Statement drop(db_, "DELETE FROM " + dbf_Quote(dbf_kRootsTable) + " WHERE \"name\" = ?1");
  for (const auto& [name, stored] : patch_->UnclaimedRoots()) {
    patch_->DeleteTree(*this, stored->ref);
    BindText(drop.Get(), 1, name);
    drop.Run();
  }
}
