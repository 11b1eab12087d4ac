#include "platform/persist/cls_Record.h"

#include <string>

#include "platform/base/nex_Exception.h"

const cls_Value* cls_Record::Find(std::string_view name) const noexcept {
  for (const auto& [n, v] : fields)
    if (n.view() == name) return &v;
  return nullptr;
}

cls_Value* cls_Record::Find(std::string_view name) noexcept {
  for (auto& [n, v] : fields)
    if (n.view() == name) return &v;
  return nullptr;
}

void cls_Record::Set(std::string_view name, cls_Value value) {
  if (cls_Value* v = Find(name)) {
    *v = std::move(value);
    return;
  }
  fields.emplace_back(cow_String(name), std::move(value));
}

bool cls_Record::Remove(std::string_view name) {
  for (auto it = fields.begin(); it != fields.end(); ++it) {
    if (it->first.view() == name) {
      fields.erase(it);
      return true;
    }
  }
  return false;
}

bool operator==(const cls_Record& a, const cls_Record& b) {
  if (a.typeId != b.typeId || a.uid != b.uid || a.fields.size() != b.fields.size()) return false;
  for (std::size_t i = 0; i < a.fields.size(); ++i) {
    if (!(a.fields[i].first == b.fields[i].first)) return false;
    if (!cls_ValueEqual(a.fields[i].second, b.fields[i].second)) return false;
  }
  return true;
}

// --- writer ---------------------------------------------------------------------------------

bool cls_RecordWriter::StartWrite(unsigned typeId, const cls_Uid& uid) const {
  rec_.typeId = typeId;
  rec_.uid = uid;
  rec_.fields.clear();
  return true;
}

void cls_RecordWriter::WriteInt(const char* name, std::int32_t v) const { rec_.fields.emplace_back(name, v); }
void cls_RecordWriter::WriteDouble(const char* name, double v) const { rec_.fields.emplace_back(name, v); }
void cls_RecordWriter::WriteBool(const char* name, bool v) const { rec_.fields.emplace_back(name, v); }
void cls_RecordWriter::WriteString(const char* name, const cow_String& v) const { rec_.fields.emplace_back(name, v); }
void cls_RecordWriter::WriteIntList(const char* name, const std::vector<std::int32_t>& v) const {
  rec_.fields.emplace_back(name, v);
}
void cls_RecordWriter::WriteDoubleList(const char* name, const std::vector<double>& v) const {
  rec_.fields.emplace_back(name, v);
}
void cls_RecordWriter::WriteStringList(const char* name, const std::vector<cow_String>& v) const {
  rec_.fields.emplace_back(name, v);
}
void cls_RecordWriter::WriteBoolList(const char* name, const std::vector<bool>& v) const {
  rec_.fields.emplace_back(name, v);
}
void cls_RecordWriter::WriteDoubleTable(const char* name, const cow_2DArray<double>& v) const {
  rec_.fields.emplace_back(name, v);
}
void cls_RecordWriter::WriteNull(const char* name) const { rec_.fields.emplace_back(name, std::monostate{}); }

void cls_RecordWriter::WriteObject(const char* name, const void* obj, cls_WriteFn fn) const {
  if (!obj) {
    WriteNull(name);
    return;
  }
  cls_RecordWriter child;
  fn(obj, child);
  rec_.fields.emplace_back(name, std::make_shared<const cls_Record>(child.Take()));
}

void cls_RecordWriter::WriteObjectList(const char* name, const std::vector<const void*>& objs, cls_WriteFn fn) const {
  std::vector<cls_RecordPtr> list;
  list.reserve(objs.size());
  for (const void* obj : objs) {
    if (!obj) {
      list.emplace_back();
      continue;
    }
    cls_RecordWriter child;
    fn(obj, child);
    list.push_back(std::make_shared<const cls_Record>(child.Take()));
  }
  rec_.fields.emplace_back(name, std::move(list));
}

// --- reader ---------------------------------------------------------------------------------

template <class T>
const T& cls_RecordReader::Get(const char* name, const char* kind) const {
  const cls_Value* v = rec_.Find(name);
  if (!v)
    nex_ThrowCmd("The stored record of type id " + std::to_string(rec_.typeId) + " has no field \"" + name + "\"");
  const T* t = std::get_if<T>(v);
  if (!t)
    nex_ThrowCmd("The field \"" + std::string(name) + "\" of the stored record of type id " +
                 std::to_string(rec_.typeId) + " holds " + cls_WithArticle(cls_ValueKindName(*v)) + ", not " + cls_WithArticle(kind));
  return *t;
}

std::int32_t cls_RecordReader::ReadInt(const char* name) const { return Get<std::int32_t>(name, "int"); }
double cls_RecordReader::ReadDouble(const char* name) const { return Get<double>(name, "double"); }
bool cls_RecordReader::ReadBool(const char* name) const { return Get<bool>(name, "bool"); }
cow_String cls_RecordReader::ReadString(const char* name) const { return Get<cow_String>(name, "string"); }
std::vector<std::int32_t> cls_RecordReader::ReadIntList(const char* name) const {
  return Get<std::vector<std::int32_t>>(name, "list of ints");
}
std::vector<double> cls_RecordReader::ReadDoubleList(const char* name) const {
  return Get<std::vector<double>>(name, "list of doubles");
}
std::vector<cow_String> cls_RecordReader::ReadStringList(const char* name) const {
  return Get<std::vector<cow_String>>(name, "list of strings");
}
std::vector<bool> cls_RecordReader::ReadBoolList(const char* name) const {
  return Get<std::vector<bool>>(name, "list of bools");
}
cow_2DArray<double> cls_RecordReader::ReadDoubleTable(const char* name) const {
  return Get<cow_2DArray<double>>(name, "table of doubles");
}

bool cls_RecordReader::ReadObject(const char* name, const cls_ReadFn& fn) const {
  const cls_Value* v = rec_.Find(name);
  if (v && std::holds_alternative<std::monostate>(*v)) return false;
  const cls_RecordPtr& child = Get<cls_RecordPtr>(name, "object");
  if (!child) return false;
  fn(cls_RecordReader(*child));
  return true;
}

std::size_t cls_RecordReader::ReadObjectList(const char* name, const cls_ReadListFn& fn) const {
  const auto& list = Get<std::vector<cls_RecordPtr>>(name, "list of objects");
  for (std::size_t i = 0; i < list.size(); ++i) {
    if (list[i]) {
      cls_RecordReader r(*list[i]);
      fn(i, &r);
    } else {
      fn(i, nullptr);
    }
  }
  return list.size();
}
