#include "dbfile/dbf_RowWriter.h"

#include <algorithm>
#include <cmath>
#include <cstring>

#include "dbfile/dbf_TableBlob.h"
#include "platform/base/nex_Exception.h"

void dbf_HexUid(const cls_Uid& uid, char* out) {
  static const char* kHex = "0123456789abcdef";
  std::uint64_t hi = uid.High(), lo = uid.Low();
  for (int i = 15; i >= 0; --i, hi >>= 4) out[i] = kHex[hi & 0xf];
  for (int i = 31; i >= 16; --i, lo >>= 4) out[i] = kHex[lo & 0xf];
}

// What no command can name, change or delete is not written: a NUL in stored text would be
// refused when the file is opened again.
void dbf_RowWriter::RefuseNul(std::size_t field, std::string_view text) const {
  const std::size_t at = text.find('\0');
  if (at == std::string_view::npos) return;
  nex_ThrowCmd("the field \"" + table_->fields[field].name + "\" of an object of class " + ClassName() +
               " holds text with a NUL character (at offset " + std::to_string(at) + ")");
}

std::string dbf_RowWriter::ClassName() const { return table_ ? table_->cls->Name().str() : std::string("?"); }

bool dbf_RowWriter::StartWrite(unsigned typeId, const cls_Uid& uid) const {
  if (table_)
    nex_ThrowCmd("an object of class " + ClassName() + " started a second record (type id " + std::to_string(typeId) +
                 ") before its own was stored");
  dbf_WriteTable& t = writer_.TableFor(typeId);
  table_ = &t;
  over_ = false;
  if (expected_.ptr && expected_.ref.classId == typeId) {
    oid_ = expected_.ref.oid;
    writer_.Patch()->LoadOld(t, expected_, old_);
    over_ = true;
  } else {
    if (expected_.ptr) doomed_.push_back(expected_.ref);  // another class now: a row of another table
    old_.Clear();
    oid_ = t.nextOid++;
  }
  expected_ = dbf_Stored{};
  dbf_HexUid(uid, uid_);
  if (cells_.size() < t.fields.size()) {
    cells_.resize(t.fields.size());
    plain_.resize(t.fields.size());
  }
  written_.assign(t.fields.size(), 0);
  cursor_ = 0;
  return true;
}

cls_WriteCell* dbf_RowWriter::Positional(const cls_FieldLayout& layout) const {
  if (!table_) return nullptr;
  dbf_WriteTable& t = *table_;
  const auto known = std::find_if(t.layouts.begin(), t.layouts.end(), [&](const auto& l) { return l.first == &layout; });
  bool matches;
  if (known != t.layouts.end()) {
    matches = known->second;
  } else {
    matches = t.fields.size() == layout.count;
    for (std::size_t i = 0; matches && i < layout.count; ++i)
      matches = t.cls->Attributes()[i].type == layout.types[i] && t.fields[i].name == layout.names[i] &&
                (!layout.cells[i] || t.plain[i]);
    t.layouts.emplace_back(&layout, matches);
  }
  if (!matches) return nullptr;
  for (std::size_t i = 0; i < t.fields.size(); ++i) written_[i] = static_cast<char>(written_[i] | layout.cells[i]);
  return plain_.data();
}

// Fields come in the order of the class's attributes, so the next one is tried first.
std::size_t dbf_RowWriter::Slot(const char* name, dbf_Kind kind) const {
  if (!table_) nex_ThrowCmd(std::string("the field \"") + name + "\" was written before its object started a record");
  const auto& fields = table_->fields;
  std::size_t i = cursor_;
  if (i >= fields.size() || std::strcmp(fields[i].name.c_str(), name) != 0) {
    auto it = table_->byName.find(name);
    if (it == table_->byName.end())
      nex_ThrowCmd("class " + ClassName() + " wrote the field \"" + name + "\", which its metadata does not declare");
    i = it->second;
  }
  if (fields[i].kind != kind)
    nex_ThrowCmd("class " + ClassName() + " wrote its field \"" + name + "\" as " + cls_WithArticle(dbf_KindName(kind)) +
                 ", but stores it as " + cls_WithArticle(dbf_KindName(fields[i].kind)));
  if (written_[i]) nex_ThrowCmd("class " + ClassName() + " wrote its field \"" + name + "\" twice");
  written_[i] = 1;
  cursor_ = i + 1;
  return i;
}

void dbf_RowWriter::WriteInt(const char* name, std::int32_t v) const { plain_[Slot(name, dbf_Kind::Int)].integer = v; }
void dbf_RowWriter::WriteDouble(const char* name, double v) const { plain_[Slot(name, dbf_Kind::Double)].number = v; }
void dbf_RowWriter::WriteBool(const char* name, bool v) const {
  plain_[Slot(name, dbf_Kind::Bool)].integer = v ? 1 : 0;
}
void dbf_RowWriter::WriteString(const char* name, const cow_String& v) const {
  const std::size_t i = Slot(name, dbf_Kind::Text);
  cells_[i].hold = v;
  plain_[i].text = v.c_str();
  plain_[i].size = v.size();
}

void dbf_RowWriter::WriteIntList(const char* name, const std::vector<std::int32_t>& v) const {
  Cell& c = cells_[Slot(name, dbf_Kind::IntList)];
  c.bytes.clear();
  dbf_AppendIntList(c.bytes, v);
}
void dbf_RowWriter::WriteDoubleList(const char* name, const std::vector<double>& v) const {
  Cell& c = cells_[Slot(name, dbf_Kind::DoubleList)];
  c.bytes.clear();
  dbf_AppendDoubleList(c.bytes, v);
}
void dbf_RowWriter::WriteStringList(const char* name, const std::vector<cow_String>& v) const {
  const std::size_t i = Slot(name, dbf_Kind::TextList);
  for (const cow_String& e : v) RefuseNul(i, e.view());
  Cell& c = cells_[i];
  c.bytes.clear();
  dbf_AppendTextList(c.bytes, v);
}
void dbf_RowWriter::WriteBoolList(const char* name, const std::vector<bool>& v) const {
  Cell& c = cells_[Slot(name, dbf_Kind::BoolList)];
  c.bytes.clear();
  dbf_AppendBoolList(c.bytes, v);
}
void dbf_RowWriter::WriteDoubleTable(const char* name, const cow_2DArray<double>& v) const {
  dbf_EncodeTable(v, cells_[Slot(name, dbf_Kind::Table)].bytes);
}

void dbf_RowWriter::WriteNull(const char* name) const { cells_[Slot(name, dbf_Kind::Object)].ref = dbf_Ref{}; }

void dbf_RowWriter::WriteObject(const char* name, const void* obj, cls_WriteFn fn) const {
  const std::size_t i = Slot(name, dbf_Kind::Object);
  Cell& c = cells_[i];
  c.ref = dbf_Ref{};
  if (!obj || Kept(i, obj, c.ref)) return;
  dbf_RowWriter& child = writer_.WriterAt(depth_ + 1);
  Pair(i, 0, 1);
  fn(obj, child);
  c.ref = child.Finish();
}

void dbf_RowWriter::WriteObjectList(const char* name, const std::vector<const void*>& objs, cls_WriteFn fn) const {
  const std::size_t f = Slot(name, dbf_Kind::ObjectList);
  Cell& c = cells_[f];
  c.bytes.clear();
  c.bytes += '[';
  dbf_RowWriter& child = writer_.WriterAt(depth_ + 1);
  for (std::size_t i = 0; i < objs.size(); ++i) {
    if (i) c.bytes += ',';
    if (!objs[i]) {
      c.bytes += "null";
      continue;
    }
    dbf_Ref kept;
    if (over_ && old_.children[f].size() == objs.size()) {
      // A list of the same length is compared place by place, without an index of the old list:
      // an object that moved is written over the row of the place it took, which is as right.
      dbf_Stored& at = old_.children[f][i];
      if (at.ptr == objs[i] && !at.taken) {
        at.taken = true;
        dbf_AppendRef(c.bytes, at.ref);
        continue;
      }
    } else if (Kept(f, objs[i], kept)) {
      dbf_AppendRef(c.bytes, kept);
      continue;
    }
    Pair(f, i, objs.size());
    fn(objs[i], child);
    dbf_AppendRef(c.bytes, child.Finish());
  }
  c.bytes += ']';
}

void dbf_RowWriter::WriteKeyedObjects(const char* keysName, const char* valuesName,
                                      const cls_KeyedObjects& objs) const {
  if (!table_) nex_ThrowCmd(std::string("the field \"") + valuesName + "\" was written before its object started a record");
  const auto values = table_->byName.find(valuesName);
  if (values == table_->byName.end() || !table_->fields[values->second].apart)
    return cls_WriteVisitor::WriteKeyedObjects(keysName, valuesName, objs);
  const std::size_t kf = Slot(keysName, objs.IntegerKeys() ? dbf_Kind::IntList : dbf_Kind::TextList);
  const std::size_t f = Slot(valuesName, dbf_Kind::ObjectList);
  dbf_ElementRows& rows = writer_.Elements();
  const dbf_Owner owner{table_->cls->TypeId(), oid_};
  // A key is checked where it goes into the file: keys already there were checked when they went.
  auto insert = [&](const cls_ElementKey& key, const dbf_Ref& ref) {
    if (key.text) RefuseNul(kf, key.text->view());
    rows.Insert(owner, key, ref);
  };
  const cls_WriteFn fn = objs.WriteFn();
  dbf_RowWriter& child = writer_.WriterAt(depth_ + 1);
  if (!over_) {
    objs.ForEach([&](const cls_ElementKey& key, const void* obj) {
      fn(obj, child);
      insert(key, child.Finish());
    });
    return;
  }
  // Written over the stored repository: what the file holds is the state `older` had.
  const void* older = f < old_.keyed.size() ? old_.keyed[f] : nullptr;
  if (!older) throw dbf_PatchUnfit("a stored repository kept no elements apart");
  objs.DiffFrom(older, [&](const cls_ElementKey& key, const void* was, const void* now) {
    dbf_Ref stored;
    const bool had = was && rows.Find(owner, key, stored);
    if (was && !had) throw dbf_PatchUnfit("a stored element is missing");
    if (!now) {
      writer_.Patch()->DeleteTree(writer_, stored);
      rows.Erase(owner, key);
      return;
    }
    if (had) child.Expect(dbf_Stored{was, fn, nullptr, stored});
    fn(now, child);
    const dbf_Ref ref = child.Finish();
    if (!had) insert(key, ref);
    else if (ref.oid != stored.oid || ref.classId != stored.classId) rows.Update(owner, key, ref);
  });
}

bool dbf_RowWriter::Kept(std::size_t i, const void* obj, dbf_Ref& ref) const {
  if (!over_) return false;
  dbf_Stored* s = old_.Find(i, obj);
  if (!s) return false;
  s->taken = true;
  ref = s->ref;
  return true;
}

// A changed object in the place of a stored one (same field, same position in a list of the
// same length) is written over that one's row: its parent's row then stays as stored.
void dbf_RowWriter::Pair(std::size_t i, std::size_t position, std::size_t count) const {
  if (!over_ || old_.children[i].size() != count) return;
  dbf_Stored& s = old_.children[i][position];
  if (!s.ptr || s.taken) return;
  s.taken = true;
  writer_.WriterAt(depth_ + 1).Expect(s);
}

void dbf_RowWriter::DropUnclaimed() const {
  dbf_Patch* patch = writer_.Patch();
  if (!patch) return;
  std::vector<dbf_Ref> drop;
  drop.swap(doomed_);
  for (const auto& field : old_.children)
    for (const dbf_Stored& s : field)
      if (s.ptr && !s.taken) drop.push_back(s.ref);
  old_.Clear();
  for (const dbf_Ref& r : drop) patch->DeleteTree(writer_, r);
}

bool dbf_RowWriter::SameAsStored() const {
  const auto& col = old_.columns;
  if (!dbf_SameText(col[1], uid_, 32)) return false;
  const auto& fields = table_->fields;
  for (std::size_t i = 0; i < fields.size(); ++i) {
    if (fields[i].apart) continue;
    const Cell& c = cells_[i];
    const cls_WriteCell& v = plain_[i];
    sqlite3_value* stored = col[static_cast<std::size_t>(fields[i].param - 1)];
    bool same;
    switch (fields[i].kind) {
      case dbf_Kind::Int:
      case dbf_Kind::Bool: same = dbf_SameInt(stored, v.integer); break;
      case dbf_Kind::Double: same = dbf_SameDouble(stored, v.number); break;
      case dbf_Kind::Text: same = dbf_SameText(stored, v.text, v.size); break;
      case dbf_Kind::Table: same = dbf_SameBlob(stored, c.bytes.data(), c.bytes.size()); break;
      case dbf_Kind::Object: same = dbf_SameRef(stored, col[static_cast<std::size_t>(fields[i].param)], c.ref); break;
      default: same = dbf_SameText(stored, c.bytes.data(), c.bytes.size()); break;
    }
    if (!same) return false;
  }
  return true;
}

dbf_Ref dbf_RowWriter::Finish() {
  if (!table_) nex_ThrowCmd("an object wrote nothing (its DBWrite started no record)");
  const auto& fields = table_->fields;
  for (std::size_t i = 0; i < fields.size(); ++i)
    if (!written_[i]) nex_ThrowCmd("class " + ClassName() + " did not write its field \"" + fields[i].name + "\"");
  if (over_ && SameAsStored()) {
    dbf_Ref ref{oid_, table_->cls->TypeId()};
    table_ = nullptr;
    over_ = false;
    DropUnclaimed();
    return ref;
  }
  sqlite3_stmt* s = table_->insert.Get();
  sqlite3_bind_int64(s, 1, oid_);
  sqlite3_bind_text(s, 2, uid_, 32, SQLITE_STATIC);
  for (std::size_t i = 0; i < fields.size(); ++i) {
    if (fields[i].apart) continue;
    const Cell& c = cells_[i];
    const cls_WriteCell& v = plain_[i];
    const int p = fields[i].param;
    switch (fields[i].kind) {
      case dbf_Kind::Int:
      case dbf_Kind::Bool: sqlite3_bind_int64(s, p, v.integer); break;
      case dbf_Kind::Double:
        if (std::isnan(v.number)) sqlite3_bind_null(s, p);  // SQLite would store NULL anyway
        else sqlite3_bind_double(s, p, v.number);
        break;
      case dbf_Kind::Text:
        if (v.size && std::memchr(v.text, 0, v.size)) RefuseNul(i, std::string_view(v.text, v.size));
        sqlite3_bind_text(s, p, v.text, static_cast<int>(v.size), SQLITE_STATIC); break;
      case dbf_Kind::Table: sqlite3_bind_blob(s, p, c.bytes.data(), static_cast<int>(c.bytes.size()), SQLITE_STATIC); break;
      case dbf_Kind::Object:
        if (c.ref.oid == 0) {
          sqlite3_bind_null(s, p);
          sqlite3_bind_null(s, p + 1);
        } else {
          sqlite3_bind_int64(s, p, c.ref.oid);
          sqlite3_bind_int64(s, p + 1, c.ref.classId);
        }
        break;
      default: sqlite3_bind_text(s, p, c.bytes.data(), static_cast<int>(c.bytes.size()), SQLITE_STATIC); break;
    }
  }
  table_->insert.Run();
  if (!over_) ++table_->rows;
  table_->touched = true;
  dbf_Ref ref{oid_, table_->cls->TypeId()};
  table_ = nullptr;
  over_ = false;
  writer_.RowStored();
  DropUnclaimed();
  return ref;
}
