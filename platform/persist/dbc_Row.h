#pragma once
// A stored row as converters see it: the fields of a record frozen at one class version,
// addressed by rfm_FieldHandle.
#include <cstdint>
#include <memory>
#include <string>

#include "platform/persist/cls_Record.h"

class rfm_FieldHandle {
 public:
  // The number is -1 when the field is addressed by name alone.
  explicit rfm_FieldHandle(const char* name, int number = -1) : name_(name), number_(number) {}
  const std::string& Name() const noexcept { return name_; }
  int Number() const noexcept { return number_; }

 private:
  std::string name_;
  int number_;
};

// Where a conversion that renames a class finds the other stored rows its old row was built on:
// base-class rows ("##BaseClassOID") and rows it refers to ("<field>#OID", "<field>#ClassID").
class dbc_RowSource {
 public:
  virtual ~dbc_RowSource() = default;
  // The stored row `oid` of the class stored under `classId`, as stored: each object field as the
  // two numbers "<field>#OID" and "<field>#ClassID" (null for no object), each list of objects as
  // the two lists "<field>#OID" and "<field>#ClassID". Null when there is no such row. A row
  // fetched counts as read.
  virtual std::shared_ptr<const cls_Record> Fetch(std::uint32_t classId, std::int64_t oid) = 0;
  // The same by the stored class name (for base rows, whose class the row does not name).
  virtual std::shared_ptr<const cls_Record> FetchByName(const std::string& className, std::int64_t oid) = 0;
  // The stored class name of a class id; empty for an id the file does not know.
  virtual std::string ClassName(std::uint32_t classId) const = 0;
  // A member object of the new row that stands for stored row `oid`, read (and upgraded) by its
  // own class when the new row's owner reads it.
  virtual cls_RecordPtr Reference(std::uint32_t classId, std::int64_t oid) = 0;
};

class dbc_Row {
 public:
  explicit dbc_Row(cls_Record& rec) noexcept : rec_(&rec), const_(&rec) {}
  explicit dbc_Row(const cls_Record& rec) noexcept : const_(&rec) {}

  bool Has(const rfm_FieldHandle& h) const noexcept { return const_->Find(h.Name()) != nullptr; }
  const cls_Value& Get(const rfm_FieldHandle& h) const;
  std::int32_t GetInt(const rfm_FieldHandle& h) const;
  double GetDouble(const rfm_FieldHandle& h) const;
  bool GetBool(const rfm_FieldHandle& h) const;
  cow_String GetString(const rfm_FieldHandle& h) const;

  // Only on a row given as modifiable (the new row of a conversion).
  void Set(const rfm_FieldHandle& h, cls_Value v);
  void SetInt(const rfm_FieldHandle& h, std::int32_t v) { Set(h, v); }
  void SetDouble(const rfm_FieldHandle& h, double v) { Set(h, v); }
  void SetBool(const rfm_FieldHandle& h, bool v) { Set(h, v); }
  void SetString(const rfm_FieldHandle& h, const cow_String& v) { Set(h, v); }
  void Remove(const rfm_FieldHandle& h);

  const cls_Record& Record() const noexcept { return *const_; }
  // The other stored rows, for conversions that rename a class; null for other conversions.
  dbc_RowSource* Source() const noexcept { return source_; }
  void SetSource(dbc_RowSource* source) noexcept { source_ = source; }

 private:
  cls_Record* rec_ = nullptr;
  const cls_Record* const_;
  dbc_RowSource* source_ = nullptr;
};
