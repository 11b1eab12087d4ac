// Loading rows: each class table read in OID order, one row's stored fields extracted into cells
// that the class's row reader reads.
#include "dbfile/dbf_Reader.h"

#include <cstdio>
#include <cstring>
#include <limits>

#include "dbfile/dbf_ReaderLiterals.h"
#include "dbfile/dbf_ReaderSupport.h"
#include "dbfile/dbf_RowReader.h"
#include "dbfile/dbf_TableBlob.h"
#include "dbfile/dbf_Utf8.h"

namespace {

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

// Stored text reaches keys, names and JSON dumps; text that is not UTF-8, or holds a NUL, is
// damage, not data.
// Checked as rows are loaded, once per value read from the file.
void CheckUtf8(const dbf_ReadTable& t, std::int64_t oid, const dbf_ReadField& f, std::string_view text) {
  if (auto at = dbf_InvalidUtf8At(text)) {
    char hex[8];
    std::snprintf(hex, sizeof hex, "0x%02X", static_cast<unsigned>(static_cast<unsigned char>(text[*at])));
    nex_ThrowCmd("the field \"" + f.name + "\" of row " + std::to_string(oid) + " of class " + t.className +
                 " holds text that is not UTF-8 (byte " + hex + " at offset " + std::to_string(*at) + ")");
  }
  // No command can name, change or delete what holds a NUL; the file may not bring one in either.
  if (const auto at = text.find('\0'); at != std::string_view::npos)
    nex_ThrowCmd("the field \"" + f.name + "\" of row " + std::to_string(oid) + " of class " + t.className +
                 " holds text with a NUL character (at offset " + std::to_string(at) + ")");
}

}  // namespace

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
    dbf_Damaged(std::string("its objects nest more than ") + std::to_string(kMaxDepth) + " levels deep");
  }
}

dbf_ReadTable& dbf_Reader::TableOf(std::uint32_t storedClassId) const {
  // The elements of a repository come one class after another: the last table found is tried first.
  if (lastTable_ && lastTable_->storedTypeId == storedClassId) return *lastTable_;
  auto it = byStoredId_.find(storedClassId);
  if (it == byStoredId_.end()) dbf_Damaged(std::string("it refers to class id ") + std::to_string(storedClassId) + ", which its catalog lacks");
  return *(lastTable_ = it->second);
}

unsigned dbf_Reader::CurrentTypeId(std::uint32_t storedClassId) const {
  const dbf_ReadTable& t = TableOf(storedClassId);
  if (!t.cls) dbf_Damaged("an object refers to a row of class " + t.className + ", which is only ever part of other rows");
  return t.cls->TypeId();
}

std::int64_t dbf_Reader::LastOid(dbf_ReadTable& t) {
  if (t.lastOid < 0) {
    dbf_Statement last(conn_->Get(), t.lastSql);
    t.lastOid = last.Step() ? sqlite3_column_int64(last.Get(), 0) : 0;
  }
  return t.lastOid;
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
      if (t.scanOid < 1 || ++t.scanned > t.rows) dbf_NotNumbered(t);
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
  if (!t.cls) dbf_Damaged("an object refers to a row of class " + t.className + ", which is only ever part of other rows");
  if (ref.oid < 1 || (ref.oid > t.rows && ref.oid > LastOid(t)))
    dbf_Damaged(std::string("it refers to row ") + std::to_string(ref.oid) + " of class " + t.className + ", which holds " +
            std::to_string(t.rows) + " rows");
  if (!MarkLoaded(t, ref.oid))
    dbf_Damaged(std::string("row ") + std::to_string(ref.oid) + " of class " + t.className + " is held twice");
  ++t.loaded;
  sqlite3_stmt* s = Position(t, ref.oid);
  if (!s) dbf_Damaged(std::string("row ") + std::to_string(ref.oid) + " of class " + t.className + " is missing");
  row.table = &t;
  row.oid = ref.oid;
  if (row.upgraded) row.spare = std::move(row.upgraded);
  if (sqlite3_column_type(s, 1) != SQLITE_TEXT || !dbf_ParseUid(dbf_Text(s, 1), row.uid))
    dbf_DamagedField(t, ref.oid, dbf_kUidColumn, "no uid");
  Extract(t, s, row);
  if (t.rename) Rename(row);
  else if (t.upgrade) Upgrade(row);
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
    if (f.apart) {
      ExtractApart(t, row, i);
      continue;
    }
    const int col = f.column;
    // One value per column, its type and contents read from it: the connection is opened without
    // a mutex, so the column's value needs no protected copy.
    sqlite3_value* cv = sqlite3_column_value(s, col);
    const int type = sqlite3_value_type(cv);
    cls_ReadCell& c = row.cells[i];
    switch (f.kind) {
      case dbf_Kind::Int: {
        std::int64_t x = sqlite3_value_int64(cv);
        if (type != SQLITE_INTEGER || x < INT32_MIN || x > INT32_MAX) dbf_DamagedField(t, row.oid, f.name, "no 32-bit integer");
        c.integer = x;
        break;
      }
      case dbf_Kind::Double:
        if (type == SQLITE_FLOAT || type == SQLITE_INTEGER) c.number = sqlite3_value_double(cv);
        else if (type == SQLITE_NULL) c.number = std::numeric_limits<double>::quiet_NaN();
        else dbf_DamagedField(t, row.oid, f.name, "no number");
        break;
      case dbf_Kind::Bool: {
        std::int64_t x = sqlite3_value_int64(cv);
        if (type != SQLITE_INTEGER || (x != 0 && x != 1)) dbf_DamagedField(t, row.oid, f.name, "no boolean");
        c.integer = x;
        break;
      }
      case dbf_Kind::Text: {
        if (type != SQLITE_TEXT) dbf_DamagedField(t, row.oid, f.name, "no text");
        std::string_view text = dbf_Text(cv);
        c.code = nullptr;
        if (f.type == cls_AttrEnum) {
          // Enumeration literals repeat from row to row: one string per literal, shared.
          std::size_t k = 0;
          const std::size_t known = f.views.size();
          while (k < known && !(f.views[k].size() == text.size() && SameBytes(f.views[k].data(), text.data(), text.size())))
            ++k;
          if (k == known) {
            CheckUtf8(t, row.oid, f, text);  // a literal met again was checked when first met
            if (f.allowed) dbf_CheckLiteral(t, row.oid, f.name, f.allowed, text);
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
          dbf_DamagedField(t, row.oid, f.name, "no table of doubles");
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
          if (ref.oid < 1 || cls < 0 || cls > UINT32_MAX) dbf_DamagedField(t, row.oid, f.name, "a malformed reference");
          ref.classId = static_cast<std::uint32_t>(cls);
        } else if (type != SQLITE_NULL || ctype != SQLITE_NULL) {
          dbf_DamagedField(t, row.oid, f.name, "a malformed reference");
        }
        row.spans[i] = {static_cast<std::uint32_t>(row.refs.size()), 1};
        row.refs.push_back(ref);
        break;
      }
      default: {  // lists, stored as JSON text
        if (type != SQLITE_TEXT) dbf_DamagedField(t, row.oid, f.name, "no list text");
        std::string_view text = dbf_Text(cv);
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
            if (ok && (text.find('\\') != std::string_view::npos || text.find('\0') != std::string_view::npos ||
                       dbf_InvalidUtf8At(text)))
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
        if (!ok) dbf_DamagedField(t, row.oid, f.name, "malformed list text");
      }
    }
  }
}

void dbf_Reader::ExtractApart(dbf_ReadTable& t, dbf_LoadedRow& row, std::size_t i) {
  const dbf_ReadField& f = t.fields[i];
  auto it = elements_.find({t.storedTypeId, row.oid});
  dbf_ElementRun* run = it == elements_.end() ? nullptr : &it->second;
  if (run) run->taken = true;
  cls_ReadCell& c = row.cells[i];
  cls_Value& v = row.values[i];
  c.value = &v;
  switch (f.kind) {
    case dbf_Kind::TextList: {
      auto& keys = v.emplace<std::vector<cow_String>>();
      if (!run) break;
      if (run->integerKeys) dbf_DamagedField(t, row.oid, f.name, "integer keys where its keys are names");
      for (const cow_String& k : run->texts) CheckUtf8(t, row.oid, f, k.view());
      keys = std::move(run->texts);
      break;
    }
    case dbf_Kind::IntList: {
      auto& keys = v.emplace<std::vector<std::int32_t>>();
      if (!run) break;
      if (run->textKeys) dbf_DamagedField(t, row.oid, f.name, "keys that are names where its keys are integers");
      keys = std::move(run->integers);
      break;
    }
    case dbf_Kind::ObjectList: {
      v = std::monostate{};
      c.value = nullptr;
      const auto first = static_cast<std::uint32_t>(row.refs.size());
      if (run) row.refs.insert(row.refs.end(), run->refs.begin(), run->refs.end());
      row.spans[i] = {first, static_cast<std::uint32_t>(row.refs.size() - first)};
      break;
    }
    default: dbf_DamagedField(t, row.oid, f.name, "a kind of value that is not kept apart");
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
