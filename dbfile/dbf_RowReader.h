#pragma once
// The read visitor of the database file: reads one loaded row by field name and loads member
// objects from their own rows as the class reads them.
#include <cstddef>

#include "platform/persist/cls_Visitor.h"
#include "dbfile/dbf_Reader.h"

class dbf_RowReader final : public cls_ReadVisitor {
 public:
  // The row is the reader's to hand over lists from (TakeStringList).
  dbf_RowReader(dbf_Reader& reader, dbf_LoadedRow& row) noexcept : reader_(reader), row_(row) {}

  cls_Uid GetUid() const override { return row_.uid; }
  unsigned GetTypeId() const override;
  bool Has(const char* name) const override;
  std::int32_t ReadInt(const char* name) const override;
  double ReadDouble(const char* name) const override;
  bool ReadBool(const char* name) const override;
  cow_String ReadString(const char* name) const override;
  std::vector<std::int32_t> ReadIntList(const char* name) const override;
  std::vector<double> ReadDoubleList(const char* name) const override;
  std::vector<cow_String> ReadStringList(const char* name) const override;
  std::vector<cow_String> TakeStringList(const char* name) const override;
  std::vector<bool> ReadBoolList(const char* name) const override;
  cow_2DArray<double> ReadDoubleTable(const char* name) const override;
  bool ReadObject(const char* name, const cls_ReadFn& fn) const override;
  std::size_t ReadObjectList(const char* name, const cls_ReadListFn& fn) const override;
  const cls_ReadCell* Positional(const cls_FieldLayout& layout) const override;

 private:
  // The stored field's index, or -1.
  long Index(const char* name) const;
  const cls_Value* FindUpgraded(const char* name) const;
  template <class T>
  T Get(const char* name, const char* kind) const;
  [[noreturn]] void Refuse(const char* name, const char* holds, const char* kind) const;
  // Loads the referenced row and calls fn with its reader.
  template <class F>
  void WithChild(const dbf_Ref& ref, dbf_LoadedRow& child, F fn) const;

  dbf_Reader& reader_;
  dbf_LoadedRow& row_;
  mutable std::size_t cursor_ = 0;
};
