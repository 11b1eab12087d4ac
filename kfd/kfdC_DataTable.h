#pragma once
// The data of a discrete field: "domain" lists the labels of the nodes or elements, each
// optionally prefixed by its part instance ("Part-1-1.12"), and "data" holds "dataWidth" values per
// label, row after row.
#include <cstdint>

#include "framework/fw_PersistentClass.h"
#include "framework/fw_Field.h"
#include "platform/base/cow_List.h"
#include "platform/base/cow_String.h"
#include "platform/base/bas_Alloc.h"
#include "platform/persist/cls_Uid.h"

class cls_ReadVisitor;
class cls_WriteVisitor;
class cls_ClassRegistrar;

class kfdC_DataTable : public fw_PersistentClass<kfdC_DataTable, mem_Allocated> {
 public:
  static constexpr const char* kClassName = "kfdC_DataTable";
  static constexpr const char* kScriptName = "FieldDataTable";  // "DataTable" constructs a table collection's data table
  static constexpr int kVersion = 1000;
  static constexpr unsigned TypeId() { return fw_TypeId(858, 8); }

  // Persistent fields in write order (field numbers record the order they were added in).
  static constexpr auto Fields() {
    using C = kfdC_DataTable;
    return std::tuple{
        fw_Field{"dataWidth", 0, "dataWidth", &C::dataWidth},
        fw_Field{"domain", 1, "domain", &C::domain},
        fw_Field{"data", 2, "data", &C::data},
    };
  }

  kfdC_DataTable() = default;
  explicit kfdC_DataTable(const cls_ReadVisitor& reader);
  virtual ~kfdC_DataTable() = default;
  virtual void AssertValid() const;
  unsigned DynTypeId() const { return TypeId(); }
  const cls_Uid& GetUid() const { return uid; }

  std::int32_t GetDataWidth() const { return dataWidth; }
  void SetDataWidth(std::int32_t v) { dataWidth = v; }
  const cow_List<cow_String>& GetDomain() const { return domain; }
  void SetDomain(const cow_List<cow_String>& v) { domain = v; }
  const cow_List<double>& GetData() const { return data; }
  void SetData(const cow_List<double>& v) { data = v; }
  // The number of labels in the domain.
  std::size_t Rows() const { return domain.size(); }
  // True when a label of the domain names its part instance.
  bool HasInstanceInformation() const;
  // Appends a label with its values; refuses a row whose width is not the table's.
  void AddRow(const cow_String& label, const cow_List<double>& values);

 private:
  std::int32_t dataWidth = 1;
  cow_List<cow_String> domain;
  cow_List<double> data;
  cls_Uid uid;
};

extern template class fw_PersistentClass<kfdC_DataTable, mem_Allocated>;
