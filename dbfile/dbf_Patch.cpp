#include "dbfile/dbf_Patch.h"

#include <cmath>
#include <cstring>

#include "dbfile/dbf_Format.h"
#include "dbfile/dbf_RowWriter.h"
#include "dbfile/dbf_TableBlob.h"
#include "dbfile/dbf_Writer.h"
#include "platform/persist/cls_ClassRegistrar.h"

void dbf_Stored::WriteTo(const cls_WriteVisitor& v) const {
  if (fn) fn(ptr, v);
  else cls->Write(ptr, v);
}

void dbf_OldRow::Clear() noexcept {
  for (sqlite3_value* v : columns) sqlite3_value_free(v);
  columns.clear();
  children.clear();
  keyed.clear();
  positions.clear();
}

dbf_Stored* dbf_OldRow::Find(std::size_t field, const void* obj) {
  if (field >= children.size()) return nullptr;
  auto& list = children[field];
  if (list.size() < 8) {
    for (auto& s : list)
      if (s.ptr == obj && !s.taken) return &s;
    return nullptr;
  }
  if (positions.size() != children.size()) positions.resize(children.size());
  auto& index = positions[field];
  if (index.empty()) {
    index.reserve(list.size());
    for (std::size_t k = 0; k < list.size(); ++k)
      if (list[k].ptr) index.emplace(list[k].ptr, k);
  }
  for (auto [it, end] = index.equal_range(obj); it != end; ++it)
    if (!list[it->second].taken) return &list[it->second];
  return nullptr;
}

bool dbf_SameInt(sqlite3_value* v, std::int64_t x) noexcept {
  return sqlite3_value_type(v) == SQLITE_INTEGER && sqlite3_value_int64(v) == x;
}

bool dbf_SameDouble(sqlite3_value* v, double x) noexcept {
  if (std::isnan(x)) return sqlite3_value_type(v) == SQLITE_NULL;
  if (sqlite3_value_type(v) != SQLITE_FLOAT) return false;
  const double stored = sqlite3_value_double(v);
  return std::memcmp(&stored, &x, sizeof x) == 0;  // tells -0.0 from 0.0
}

bool dbf_SameText(sqlite3_value* v, const char* p, std::size_t n) noexcept {
  if (sqlite3_value_type(v) != SQLITE_TEXT) return false;
  const unsigned char* t = sqlite3_value_text(v);
  return static_cast<std::size_t>(sqlite3_value_bytes(v)) == n && (n == 0 || std::memcmp(t, p, n) == 0);
}

bool dbf_SameBlob(sqlite3_value* v, const char* p, std::size_t n) noexcept {
  if (sqlite3_value_type(v) != SQLITE_BLOB) return false;
  const void* b = sqlite3_value_blob(v);
  return static_cast<std::size_t>(sqlite3_value_bytes(v)) == n && (n == 0 || std::memcmp(b, p, n) == 0);
}

bool dbf_SameRef(sqlite3_value* oid, sqlite3_value* classId, const dbf_Ref& ref) noexcept {
  if (ref.oid == 0) return sqlite3_value_type(oid) == SQLITE_NULL && sqlite3_value_type(classId) == SQLITE_NULL;
  return dbf_SameInt(oid, ref.oid) && dbf_SameInt(classId, ref.classId);
}

namespace {

// Writes an old object against its stored row: every plain field must come out as stored (else
// the row is not the object's, and keeping member rows by position would be wrong); member
// objects are collected by field, with the references the row holds for them.
class PatchCapture final : public cls_WriteVisitor {
 public:
  PatchCapture(const dbf_WriteTable& t, dbf_OldRow& row) : t_(t), row_(row) {
    row_.children.assign(t.fields.size(), {});
    row_.keyed.assign(t.fields.size(), nullptr);
  }
  bool StartWrite(unsigned typeId, const cls_Uid& uid) const override {
    if (started_) return false;
    started_ = true;
    char hex[32];
    dbf_HexUid(uid, hex);
    if (typeId != t_.cls->TypeId() || !dbf_SameText(row_.columns[1], hex, 32)) Unfit();
    return true;
  }
  void WriteInt(const char* n, std::int32_t v) const override { Check(dbf_SameInt(Col(n, dbf_Kind::Int), v)); }
  void WriteDouble(const char* n, double v) const override { Check(dbf_SameDouble(Col(n, dbf_Kind::Double), v)); }
  void WriteBool(const char* n, bool v) const override { Check(dbf_SameInt(Col(n, dbf_Kind::Bool), v ? 1 : 0)); }
  void WriteString(const char* n, const cow_String& v) const override {
    Check(dbf_SameText(Col(n, dbf_Kind::Text), v.c_str(), v.size()));
  }
  void WriteIntList(const char* n, const std::vector<std::int32_t>& v) const override {
    buf_.clear();
    dbf_AppendIntList(buf_, v);
    CheckText(n, dbf_Kind::IntList);
  }
  void WriteDoubleList(const char* n, const std::vector<double>& v) const override {
    buf_.clear();
    dbf_AppendDoubleList(buf_, v);
    CheckText(n, dbf_Kind::DoubleList);
  }
  void WriteStringList(const char* n, const std::vector<cow_String>& v) const override {
    buf_.clear();
    dbf_AppendTextList(buf_, v);
    CheckText(n, dbf_Kind::TextList);
  }
  void WriteBoolList(const char* n, const std::vector<bool>& v) const override {
    buf_.clear();
    dbf_AppendBoolList(buf_, v);
    CheckText(n, dbf_Kind::BoolList);
  }
  void WriteDoubleTable(const char* n, const cow_2DArray<double>& v) const override {
    buf_.clear();
    dbf_EncodeTable(v, buf_);
    Check(dbf_SameBlob(Col(n, dbf_Kind::Table), buf_.data(), buf_.size()));
  }
  void WriteNull(const char* n) const override { Check(sqlite3_value_type(Col(n, dbf_Kind::Object)) == SQLITE_NULL); }
  void WriteObject(const char* n, const void* obj, cls_WriteFn fn) const override {
    const std::size_t i = Field(n, dbf_Kind::Object);
    const int c = t_.fields[i].param - 1;
    if (!obj) return Check(sqlite3_value_type(row_.columns[c]) == SQLITE_NULL);
    if (sqlite3_value_type(row_.columns[c]) != SQLITE_INTEGER) Unfit();
    const dbf_Ref ref{sqlite3_value_int64(row_.columns[c]),
                      static_cast<std::uint32_t>(sqlite3_value_int64(row_.columns[c + 1]))};
    row_.children[i].push_back(dbf_Stored{obj, fn, nullptr, ref});
  }
  void WriteObjectList(const char* n, const std::vector<const void*>& objs, cls_WriteFn fn) const override {
    const std::size_t i = Field(n, dbf_Kind::ObjectList);
    sqlite3_value* v = row_.columns[t_.fields[i].param - 1];
    std::vector<dbf_Ref> refs;
    if (sqlite3_value_type(v) != SQLITE_TEXT ||
        !dbf_ParseRefList(std::string_view(reinterpret_cast<const char*>(sqlite3_value_text(v)),
                                           static_cast<std::size_t>(sqlite3_value_bytes(v))),
                          refs) ||
        refs.size() != objs.size())
      Unfit();
    auto& out = row_.children[i];
    out.reserve(objs.size());
    for (std::size_t k = 0; k < objs.size(); ++k) {
      if ((objs[k] == nullptr) != (refs[k].oid == 0)) Unfit();
      out.push_back(dbf_Stored{objs[k], fn, nullptr, refs[k]});
    }
  }
  void WriteKeyedObjects(const char* keysName, const char* valuesName, const cls_KeyedObjects& objs) const override {
    const std::size_t v = Field(valuesName, dbf_Kind::ObjectList);
    const std::size_t k = Field(keysName, objs.IntegerKeys() ? dbf_Kind::IntList : dbf_Kind::TextList);
    if (!t_.fields[v].apart || !t_.fields[k].apart) Unfit();
    row_.keyed[v] = objs.Self();
  }

 private:
  [[noreturn]] static void Unfit() { throw dbf_PatchUnfit("a stored row is not what its object writes"); }
  static void Check(bool same) {
    if (!same) Unfit();
  }
  std::size_t Field(const char* name, dbf_Kind kind) const {
    auto it = t_.byName.find(name);
    if (it == t_.byName.end() || t_.fields[it->second].kind != kind) Unfit();
    return it->second;
  }
  sqlite3_value* Col(const char* name, dbf_Kind kind) const {
    return row_.columns[static_cast<std::size_t>(t_.fields[Field(name, kind)].param - 1)];
  }
  void CheckText(const char* n, dbf_Kind kind) const { Check(dbf_SameText(Col(n, kind), buf_.data(), buf_.size())); }

  const dbf_WriteTable& t_;
  dbf_OldRow& row_;
  mutable bool started_ = false;
  mutable std::string buf_;
};

}  // namespace

dbf_Patch::dbf_Patch(sqlite3* db, const std::vector<dbf_Root>& old) : db_(db) {
  const auto& registrar = cls_ClassRegistrar::Instance();
  {
    dbf_Statement v(db_, "PRAGMA user_version");
    if (!v.Step() || sqlite3_column_int64(v.Get(), 0) != dbf_DatabaseVersion())
      throw dbf_PatchUnfit("the file is at another database version");
  }
  dbf_Statement cat(db_, "SELECT \"name\", \"typeId\", \"version\", \"fieldHash\", \"rows\" FROM " +
                             dbf_Quote(dbf_kCatalogTable));
  while (cat.Step()) {
    sqlite3_stmt* s = cat.Get();
    const std::string name(reinterpret_cast<const char*>(sqlite3_column_text(s, 0)),
                           static_cast<std::size_t>(sqlite3_column_bytes(s, 0)));
    const cls_ClassMetadata* cls = registrar.ByName(name.c_str());
    const char* hash = reinterpret_cast<const char*>(sqlite3_column_text(s, 3));
    if (!cls || cls->TypeId() != sqlite3_column_int64(s, 1) || cls->Version() != sqlite3_column_int64(s, 2) || !hash ||
        dbf_FieldTableHash(cls->Attributes()) != hash)
      throw dbf_PatchUnfit("a class is stored at another version");
    catalog_[name] = CatalogRow{cls->TypeId(), sqlite3_column_int64(s, 4)};
  }
  std::map<std::string, dbf_Ref> stored;
  dbf_Statement r(db_, "SELECT \"name\", \"OID\", \"ClassID\" FROM " + dbf_Quote(dbf_kRootsTable));
  while (r.Step()) {
    sqlite3_stmt* s = r.Get();
    stored[std::string(reinterpret_cast<const char*>(sqlite3_column_text(s, 0)),
                       static_cast<std::size_t>(sqlite3_column_bytes(s, 0)))] =
        dbf_Ref{sqlite3_column_int64(s, 1), static_cast<std::uint32_t>(sqlite3_column_int64(s, 2))};
  }
  if (stored.size() != old.size()) throw dbf_PatchUnfit("the file holds other roots");
  for (const dbf_Root& root : old) {
    auto it = stored.find(root.name.str());
    if (it == stored.end() || it->second.classId != root.cls->TypeId())
      throw dbf_PatchUnfit("the file holds other roots");
    roots_.emplace(it->first, dbf_Stored{root.object, nullptr, root.cls, it->second});
  }
}

const dbf_Patch::CatalogRow* dbf_Patch::Catalog(const std::string& className) const {
  auto it = catalog_.find(className);
  return it == catalog_.end() ? nullptr : &it->second;
}

dbf_Stored* dbf_Patch::OldRoot(const cow_String& name) {
  auto it = roots_.find(name.view());
  if (it == roots_.end()) return nullptr;
  it->second.taken = true;
  return &it->second;
}

std::vector<std::pair<std::string_view, dbf_Stored*>> dbf_Patch::UnclaimedRoots() {
  std::vector<std::pair<std::string_view, dbf_Stored*>> out;
  for (auto& [name, s] : roots_)
    if (!s.taken) out.emplace_back(name, &s);
  return out;
}

namespace {
// The row of `oid` in the table's select statement, stepped; false when there is none.
bool PatchSelect(sqlite3* db, dbf_WriteTable& t, std::int64_t oid) {
  if (!t.select.Get())
    t.select = dbf_Statement(db, "SELECT * FROM " + dbf_Quote(t.cls->Name().str()) + " WHERE " +
                                     dbf_Quote(dbf_kOidColumn) + " = ?1");
  t.select.Reset();
  sqlite3_bind_int64(t.select.Get(), 1, oid);
  return t.select.Step();
}
}  // namespace

void dbf_Patch::LoadOld(dbf_WriteTable& t, const dbf_Stored& s, dbf_OldRow& out) {
  out.Clear();
  if (!PatchSelect(db_, t, s.ref.oid)) throw dbf_PatchUnfit("a stored row is missing");
  sqlite3_stmt* q = t.select.Get();
  const int n = sqlite3_column_count(q);
  out.columns.reserve(static_cast<std::size_t>(n));
  for (int i = 0; i < n; ++i) {
    sqlite3_value* v = sqlite3_value_dup(sqlite3_column_value(q, i));
    if (!v) throw std::bad_alloc();
    out.columns.push_back(v);
  }
  t.select.Reset();
  PatchCapture capture(t, out);
  s.WriteTo(capture);
}

void dbf_Patch::DeleteTree(dbf_Writer& writer, const dbf_Ref& ref) {
  const cls_ClassMetadata* cls = cls_ClassRegistrar::Instance().ByTypeId(ref.classId);
  if (!cls || !Catalog(cls->Name().str())) throw dbf_PatchUnfit("a stored reference leads nowhere");
  dbf_WriteTable& t = writer.TableFor(ref.classId);
  if (!PatchSelect(db_, t, ref.oid)) throw dbf_PatchUnfit("a stored row is missing");
  std::vector<dbf_Ref> held;
  sqlite3_stmt* q = t.select.Get();
  bool apart = false;
  for (const dbf_WriteField& f : t.fields) {
    apart = apart || f.apart;
    if (f.apart) continue;
    const int c = f.param - 1;
    if (f.kind == dbf_Kind::Object && sqlite3_column_type(q, c) == SQLITE_INTEGER) {
      held.push_back(dbf_Ref{sqlite3_column_int64(q, c), static_cast<std::uint32_t>(sqlite3_column_int64(q, c + 1))});
    } else if (f.kind == dbf_Kind::ObjectList) {
      std::vector<dbf_Ref> list;
      if (!dbf_ParseRefList(std::string_view(reinterpret_cast<const char*>(sqlite3_column_text(q, c)),
                                             static_cast<std::size_t>(sqlite3_column_bytes(q, c))),
                            list))
        throw dbf_PatchUnfit("a stored list of objects cannot be read");
      for (const dbf_Ref& r : list)
        if (r.oid != 0) held.push_back(r);
    }
  }
  t.select.Reset();
  if (apart)
    for (const dbf_Ref& r : writer.Elements().TakeAll(dbf_Owner{ref.classId, ref.oid})) held.push_back(r);
  if (!t.erase.Get())
    t.erase = dbf_Statement(db_, "DELETE FROM " + dbf_Quote(t.cls->Name().str()) + " WHERE " +
                                     dbf_Quote(dbf_kOidColumn) + " = ?1");
  sqlite3_bind_int64(t.erase.Get(), 1, ref.oid);
  t.erase.Run();
  --t.rows;
  t.touched = true;
  ++deleted_;
  for (const dbf_Ref& r : held) DeleteTree(writer, r);
}
