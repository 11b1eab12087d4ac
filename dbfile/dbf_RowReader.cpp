#include "dbfile/dbf_RowReader.h"

#include <cstring>
#include <string>
#include <type_traits>

#include "dbfile/dbf_ReaderLiterals.h"
#include "platform/base/nex_Exception.h"

unsigned dbf_RowReader::GetTypeId() const {
  return row_.upgraded ? row_.upgraded->record.typeId : row_.table->cls->TypeId();
}

// Classes read their fields in the order they wrote them, so the next field is tried first.
long dbf_RowReader::Index(const char* name) const {
  const auto& fields = row_.table->fields;
  if (cursor_ < fields.size() && std::strcmp(fields[cursor_].name.c_str(), name) == 0) return static_cast<long>(cursor_++);
  auto it = row_.table->byName.find(name);
  if (it == row_.table->byName.end()) return -1;
  cursor_ = it->second + 1;
  return static_cast<long>(it->second);
}

// An upgraded row's record, searched from the next field as Index does.
const cls_Value* dbf_RowReader::FindUpgraded(const char* name) const {
  auto& fields = row_.upgraded->record.fields;
  const std::string_view n(name);
  if (cursor_ < fields.size() && fields[cursor_].first.view() == n) return &fields[cursor_++].second;
  for (std::size_t i = 0; i < fields.size(); ++i)
    if (fields[i].first.view() == n) {
      cursor_ = i + 1;
      return &fields[i].second;
    }
  return nullptr;
}

void dbf_RowReader::Refuse(const char* name, const char* holds, const char* kind) const {
  nex_ThrowCmd(std::string("the field \"") + std::string(name) + "\" of row " + std::to_string(row_.oid) + " of class " +
               row_.table->className + " holds " + holds + ", not " + cls_WithArticle(kind));
}

bool dbf_RowReader::Has(const char* name) const {
  if (row_.upgraded) return FindUpgraded(name) != nullptr;
  return Index(name) >= 0;
}

template <class T>
T dbf_RowReader::Get(const char* name, const char* kind) const {
  if (row_.upgraded) {
    const cls_Value* v = FindUpgraded(name);
    if (!v)
      nex_ThrowCmd(std::string("row ") + std::to_string(row_.oid) + " of class " + row_.table->className +
                   " has no field \"" + name + "\"");
    const T* t = std::get_if<T>(v);
    if (!t) Refuse(name, cls_WithArticle(cls_ValueKindName(*v)).c_str(), kind);
    return *t;
  }
  const long found = Index(name);
  if (found < 0)
    nex_ThrowCmd(std::string("row ") + std::to_string(row_.oid) + " of class " + row_.table->className + " has no field \"" +
                 name + "\"");
  const auto i = static_cast<std::size_t>(found);
  const dbf_Kind stored = row_.table->fields[i].kind;
  if (stored == dbf_Kind::Object || stored == dbf_Kind::ObjectList)
    Refuse(name, stored == dbf_Kind::Object ? "an object" : "a list of objects", "plain value");
  const cls_ReadCell& c = row_.cells[i];
  if constexpr (std::is_same_v<T, std::int32_t>) {
    if (stored == dbf_Kind::Int) return static_cast<std::int32_t>(c.integer);
  } else if constexpr (std::is_same_v<T, double>) {
    if (stored == dbf_Kind::Double) return c.number;
  } else if constexpr (std::is_same_v<T, bool>) {
    if (stored == dbf_Kind::Bool) return c.integer != 0;
  } else if constexpr (std::is_same_v<T, cow_String>) {
    if (stored == dbf_Kind::Text) return *c.text;
  } else {
    if (stored != dbf_Kind::Int && stored != dbf_Kind::Double && stored != dbf_Kind::Bool && stored != dbf_Kind::Text) {
      if (!c.value)  // handed over by TakeStringList
        nex_ThrowCmd(std::string("row ") + std::to_string(row_.oid) + " of class " + row_.table->className +
                     " has no field \"" + name + "\" left to read");
      if (const T* t = std::get_if<T>(c.value)) return *t;
    }
  }
  Refuse(name, cls_WithArticle(dbf_KindName(stored)).c_str(), kind);
}

const cls_ReadCell* dbf_RowReader::Positional(const cls_FieldLayout& layout) const {
  if (row_.upgraded || row_.cells.empty() || !dbf_Reader::Positional(*row_.table, layout)) return nullptr;
  return row_.cells.data();
}

std::int32_t dbf_RowReader::ReadInt(const char* name) const { return Get<std::int32_t>(name, "int"); }
double dbf_RowReader::ReadDouble(const char* name) const { return Get<double>(name, "double"); }
bool dbf_RowReader::ReadBool(const char* name) const { return Get<bool>(name, "bool"); }
// Stored text was checked to be UTF-8 as its row was loaded.
cow_String dbf_RowReader::ReadString(const char* name) const {
  cow_String text = Get<cow_String>(name, "string");
  // A row read as stored had its literals checked as it loaded; an upgraded row holds today's
  // literals only after its conversions, so its are checked as they are read.
  if (row_.upgraded && row_.table->cls)
    if (const omu_EnumLiteral* allowed = dbf_LiteralsOf(*row_.table->cls, name))
      dbf_CheckLiteral(*row_.table, row_.oid, name, allowed, text.view());
  return text;
}
std::vector<std::int32_t> dbf_RowReader::ReadIntList(const char* name) const {
  return Get<std::vector<std::int32_t>>(name, "list of ints");
}
std::vector<double> dbf_RowReader::ReadDoubleList(const char* name) const {
  return Get<std::vector<double>>(name, "list of doubles");
}
std::vector<cow_String> dbf_RowReader::ReadStringList(const char* name) const {
  return Get<std::vector<cow_String>>(name, "list of strings");
}
std::vector<bool> dbf_RowReader::ReadBoolList(const char* name) const {
  return Get<std::vector<bool>>(name, "list of bools");
}
std::vector<cow_String> dbf_RowReader::TakeStringList(const char* name) const {
  if (row_.upgraded) return ReadStringList(name);
  const long found = Index(name);
  if (found >= 0) {
    const auto i = static_cast<std::size_t>(found);
    cls_ReadCell& c = row_.cells[i];
    if (row_.table->fields[i].kind == dbf_Kind::TextList && c.value) {
      // The cell points into the row's own values: the list is moved out and the cell emptied.
      auto& list = std::get<std::vector<cow_String>>(row_.values[i]);
      c.value = nullptr;
      return std::move(list);
    }
  }
  return ReadStringList(name);  // refuses what is not a list of strings, as a read does
}
cow_2DArray<double> dbf_RowReader::ReadDoubleTable(const char* name) const {
  return Get<cow_2DArray<double>>(name, "table of doubles");
}

template <class F>
void dbf_RowReader::WithChild(const dbf_Ref& ref, dbf_LoadedRow& child, F fn) const {
  dbf_Reader::Nesting nesting(reader_);
  reader_.Load(ref, child);
  dbf_RowReader r(reader_, child);
  fn(r);
}

bool dbf_RowReader::ReadObject(const char* name, const cls_ReadFn& fn) const {
  dbf_LoadedRow child;
  if (row_.upgraded) {
    const cls_Value* v = FindUpgraded(name);
    if (v && std::holds_alternative<std::monostate>(*v)) return false;
    const cls_RecordPtr& p = Get<cls_RecordPtr>(name, "object");  // refuses a missing field
    if (!p) return false;
    auto stub = row_.upgraded->stubs.find(p.get());
    if (stub == row_.upgraded->stubs.end()) fn(cls_RecordReader(*p));  // made by a conversion
    else WithChild(stub->second.second, child, fn);
    return true;
  }
  long i = Index(name);
  if (i < 0)
    nex_ThrowCmd(std::string("row ") + std::to_string(row_.oid) + " of class " + row_.table->className + " has no field \"" + name + "\"");
  const dbf_ReadField& f = row_.table->fields[static_cast<std::size_t>(i)];
  if (f.kind != dbf_Kind::Object) Refuse(name, f.kind == dbf_Kind::ObjectList ? "a list of objects" : "a plain value", "object");
  const dbf_Ref& ref = row_.refs[row_.spans[static_cast<std::size_t>(i)].first];
  if (ref.oid == 0) return false;
  WithChild(ref, child, fn);
  return true;
}

std::size_t dbf_RowReader::ReadObjectList(const char* name, const cls_ReadListFn& fn) const {
  dbf_LoadedRow child;  // reused for every element
  if (row_.upgraded) {
    const auto& list = Get<std::vector<cls_RecordPtr>>(name, "list of objects");
    for (std::size_t k = 0; k < list.size(); ++k) {
      const cls_RecordPtr& p = list[k];
      if (!p) {
        fn(k, nullptr);
        continue;
      }
      auto stub = row_.upgraded->stubs.find(p.get());
      if (stub == row_.upgraded->stubs.end()) {
        cls_RecordReader r(*p);
        fn(k, &r);
      } else {
        WithChild(stub->second.second, child, [&](const cls_ReadVisitor& r) { fn(k, &r); });
      }
    }
    return list.size();
  }
  long i = Index(name);
  if (i < 0)
    nex_ThrowCmd(std::string("row ") + std::to_string(row_.oid) + " of class " + row_.table->className + " has no field \"" + name + "\"");
  const dbf_ReadField& f = row_.table->fields[static_cast<std::size_t>(i)];
  if (f.kind != dbf_Kind::ObjectList) Refuse(name, f.kind == dbf_Kind::Object ? "an object" : "a plain value", "list of objects");
  auto [first, count] = row_.spans[static_cast<std::size_t>(i)];
  // The refs stay valid while children load: they belong to this row, not to the child.
  for (std::size_t k = 0; k < count; ++k) {
    const dbf_Ref& ref = row_.refs[first + k];
    if (ref.oid == 0) fn(k, nullptr);
    else WithChild(ref, child, [&](const cls_ReadVisitor& r) { fn(k, &r); });
  }
  return count;
}
