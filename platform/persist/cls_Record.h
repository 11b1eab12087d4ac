#pragma once
// The in-memory record of one object: its class identity, uid and fields in writing order.
// Records are what converters work on and what the database file stores and loads.
#include <string_view>
#include <utility>
#include <vector>

#include "platform/persist/cls_Uid.h"
#include "platform/persist/cls_Value.h"
#include "platform/persist/cls_Visitor.h"

struct cls_Record {
  unsigned typeId = 0;
  cls_Uid uid = cls_Uid::Null();
  std::vector<std::pair<cow_String, cls_Value>> fields;

  const cls_Value* Find(std::string_view name) const noexcept;
  cls_Value* Find(std::string_view name) noexcept;
  // Replaces the named field, or appends it.
  void Set(std::string_view name, cls_Value value);
  bool Remove(std::string_view name);

  friend bool operator==(const cls_Record& a, const cls_Record& b);
};

// Writes an object into a record.
class cls_RecordWriter : public cls_WriteVisitor {
 public:
  cls_RecordWriter() = default;
  // The record written; empty (type id 0) when StartWrite was declined or not called.
  cls_Record& Record() noexcept { return rec_; }
  cls_Record Take() { return std::move(rec_); }

  bool StartWrite(unsigned typeId, const cls_Uid& uid) const override;
  void WriteInt(const char* name, std::int32_t v) const override;
  void WriteDouble(const char* name, double v) const override;
  void WriteBool(const char* name, bool v) const override;
  void WriteString(const char* name, const cow_String& v) const override;
  void WriteIntList(const char* name, const std::vector<std::int32_t>& v) const override;
  void WriteDoubleList(const char* name, const std::vector<double>& v) const override;
  void WriteStringList(const char* name, const std::vector<cow_String>& v) const override;
  void WriteBoolList(const char* name, const std::vector<bool>& v) const override;
  void WriteDoubleTable(const char* name, const cow_2DArray<double>& v) const override;
  void WriteNull(const char* name) const override;
  void WriteObject(const char* name, const void* obj, cls_WriteFn fn) const override;
  void WriteObjectList(const char* name, const std::vector<const void*>& objs, cls_WriteFn fn) const override;

 private:
  mutable cls_Record rec_;
};

// Reads an object from a record.
class cls_RecordReader : public cls_ReadVisitor {
 public:
  explicit cls_RecordReader(const cls_Record& rec) noexcept : rec_(rec) {}

  cls_Uid GetUid() const override { return rec_.uid; }
  unsigned GetTypeId() const override { return rec_.typeId; }
  bool Has(const char* name) const override { return rec_.Find(name) != nullptr; }
  std::int32_t ReadInt(const char* name) const override;
  double ReadDouble(const char* name) const override;
  bool ReadBool(const char* name) const override;
  cow_String ReadString(const char* name) const override;
  std::vector<std::int32_t> ReadIntList(const char* name) const override;
  std::vector<double> ReadDoubleList(const char* name) const override;
  std::vector<cow_String> ReadStringList(const char* name) const override;
  std::vector<bool> ReadBoolList(const char* name) const override;
  cow_2DArray<double> ReadDoubleTable(const char* name) const override;
  bool ReadObject(const char* name, const cls_ReadFn& fn) const override;
  std::size_t ReadObjectList(const char* name, const cls_ReadListFn& fn) const override;

 private:
  template <class T>
  const T& Get(const char* name, const char* kind) const;
  const cls_Record& rec_;
};

// Writes an object into a new record with its own DBWrite.
template <class T>
cls_Record cls_ToRecord(const T& obj) {
  cls_RecordWriter w;
  obj.DBWrite(w);
  return w.Take();
}
