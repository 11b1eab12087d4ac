#pragma once
// A table of typed columns: a label and its columns in order.
#include <cstdint>

#include "framework/fw_PersistentClass.h"
#include "framework/fw_Field.h"
#include "ktb/ktbC_DataColumnList.h"
#include "platform/base/cow_String.h"
#include "platform/base/bas_Alloc.h"
#include "platform/persist/cls_Uid.h"

class cls_ReadVisitor;
class cls_WriteVisitor;
class cls_ClassRegistrar;

class ktbC_CompositeColTable : public fw_PersistentClass<ktbC_CompositeColTable, mem_Allocated> {
 public:
  static constexpr const char* kClassName = "ktbC_CompositeColTable";
  static constexpr const char* kScriptName = "DataTable";
  static constexpr int kVersion = 1000;
  static constexpr unsigned TypeId() { return fw_TypeId(772, 2); }
  static const char* constructorCmd() { return kScriptName; }
  static const char* getColumnByIdCmd() { return "getColumnById"; }

  // Persistent fields in write order (field numbers record the order they were added in).
  static constexpr auto Fields() {
    using C = ktbC_CompositeColTable;
    return std::tuple{
        fw_Field{"label", 0, "label", &C::label},
        fw_Field{"columns", 1, "columns", &C::columns},
    };
  }

  ktbC_CompositeColTable() = default;
  explicit ktbC_CompositeColTable(const cls_ReadVisitor& reader);
  virtual ~ktbC_CompositeColTable() = default;
  virtual void AssertValid() const;
  unsigned DynTypeId() const { return TypeId(); }
  const cls_Uid& GetUid() const { return uid; }

  const cow_String& GetLabel() const { return label; }
  void SetLabel(const cow_String& v) { label = v; }
  const ktbC_DataColumnList& GetColumns() const { return columns; }
  void SetColumns(const ktbC_DataColumnList& v) { columns = v; }
  ktbC_DataColumnList& ModifyColumns() { return columns; }
  // The first column with that id; null when the table has none.
  const ktbC_DataColumn* getColumnById(std::int32_t id) const;

 private:
  cow_String label;
  ktbC_DataColumnList columns;
  cls_Uid uid;
};

extern template class fw_PersistentClass<ktbC_CompositeColTable, mem_Allocated>;
