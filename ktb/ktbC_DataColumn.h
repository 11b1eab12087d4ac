#pragma once
// One typed column of a data table, identified by its id: its values are kept in the list that
// belongs to its type; the lists of the other types stay empty.
#include <cstdint>

#include "framework/fw_PersistentClass.h"
#include "framework/fw_Field.h"
#include "platform/base/cow_List.h"
#include "platform/base/cow_String.h"
#include "platform/base/omu_PrimEnum.h"
#include "platform/base/bas_Alloc.h"
#include "platform/persist/cls_Uid.h"

class cls_ReadVisitor;
class cls_WriteVisitor;
class cls_ClassRegistrar;

class ktbC_DataColumn : public fw_PersistentClass<ktbC_DataColumn, mem_Allocated> {
 public:
  // The type of the values; INTEGER values are kept in "column_int", FLOAT ones in
  // "column_float", STRING ones in "column_str".
  enum class colTypeEnm : std::int32_t { INTEGER = 0, FLOAT = 1, STRING = 2 };
  static constexpr omu_EnumLiteral kColTypeLiterals[] = {{"INTEGER", 0}, {"FLOAT", 1}, {"STRING", 2}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(colTypeEnm) { return kColTypeLiterals; }
  static constexpr const char* kClassName = "ktbC_DataColumn";
  static constexpr const char* kScriptName = "Column";
  static constexpr int kVersion = 1000;
  static constexpr unsigned TypeId() { return fw_TypeId(772, 3); }

  // Persistent fields in write order (field numbers record the order they were added in).
  static constexpr auto Fields() {
    using C = ktbC_DataColumn;
    return std::tuple{
        fw_Field{"colId", 0, "id", &C::colId},
        fw_Field{"colLabel", 1, "label", &C::colLabel},
        fw_Field{"colType", 2, "columnType", &C::colType},
        fw_Field{"column_float", 3, "column_float", &C::column_float},
        fw_Field{"column_int", 4, "column_int", &C::column_int},
        fw_Field{"column_str", 5, "column_str", &C::column_str},
    };
  }

  ktbC_DataColumn() = default;
  explicit ktbC_DataColumn(const cls_ReadVisitor& reader);
  virtual ~ktbC_DataColumn() = default;
  virtual void AssertValid() const;
  unsigned DynTypeId() const { return TypeId(); }
  const cls_Uid& GetUid() const { return uid; }

  std::int32_t GetColId() const { return colId; }
  void SetColId(std::int32_t v) { colId = v; }
  const cow_String& GetColLabel() const { return colLabel; }
  void SetColLabel(const cow_String& v) { colLabel = v; }
  colTypeEnm GetColType() const { return colType; }
  void SetColType(colTypeEnm v) { colType = v; }
  const cow_List<double>& GetColumn_float() const { return column_float; }
  void SetColumn_float(const cow_List<double>& v) { column_float = v; }
  const cow_List<std::int32_t>& GetColumn_int() const { return column_int; }
  void SetColumn_int(const cow_List<std::int32_t>& v) { column_int = v; }
  const cow_List<cow_String>& GetColumn_str() const { return column_str; }
  void SetColumn_str(const cow_List<cow_String>& v) { column_str = v; }
  // The number of values in the list of the column's type.
  std::size_t Size() const;

 private:
  std::int32_t colId = 0;
  cow_String colLabel;
  colTypeEnm colType = colTypeEnm::FLOAT;
  cow_List<double> column_float;
  cow_List<std::int32_t> column_int;
  cow_List<cow_String> column_str;
  cls_Uid uid;
};

extern template class fw_PersistentClass<ktbC_DataColumn, mem_Allocated>;
