#pragma once
// The data table of a tabular material option: rows of doubles (blank cells are stored as 0.0)
// and whether the first row may be all zeros.
#include "framework/fw_PersistentClass.h"
#include "framework/fw_Field.h"
#include "kma/kmaC_OptionClass.h"
#include "platform/base/bas_Alloc.h"
#include "platform/base/cow_2DArray.h"
#include "platform/persist/cls_Uid.h"

class cls_ReadVisitor;
class cls_WriteVisitor;
class cls_ClassRegistrar;

class kmaC_MaterialTable : public fw_PersistentClass<kmaC_MaterialTable, mem_Allocated> {
 public:
  static constexpr const char* kClassName = "kmaC_MaterialTable";
  static constexpr int kVersion = 203;
  static constexpr unsigned TypeId() { return fw_TypeId(kmaC_kArchKey, 61); }

  static constexpr auto Fields() {
    using C = kmaC_MaterialTable;
    return std::tuple{
        fw_Field{"table", 0, "table", &C::table},
        fw_Field{"allowEmptyFirstRow", 1, "allowEmptyFirstRow", &C::allowEmptyFirstRow},
    };
  }

  kmaC_MaterialTable() = default;
  // A zero-filled table of that size.
  kmaC_MaterialTable(int rows, int columns);
  explicit kmaC_MaterialTable(const cow_2DArray<double>& data) : table(data) {}
  kmaC_MaterialTable(const kmaC_MaterialTable&) = default;
  kmaC_MaterialTable& operator=(const kmaC_MaterialTable&) = default;
  explicit kmaC_MaterialTable(const cls_ReadVisitor& r);

  // Every row must hold a non-zero cell (code 23); the first row is exempt when allowed to be
  // empty. A table without columns passes.
  void AssertValid() const;
  // Sorts the rows ascending by the last `keyColumns` columns, the last column most significant;
  // rows equal in every key keep their order. Nothing happens for 0.
  void Sort(int keyColumns);

  const cls_Uid& GetUid() const { return uid; }
  const cow_2DArray<double>& GetTable() const { return table; }
  void SetTable(const cow_2DArray<double>& v) { table = v; }
  bool GetAllowEmptyFirstRow() const { return allowEmptyFirstRow; }
  void AllowEmptyFirstRow(bool v) { allowEmptyFirstRow = v; }
  std::size_t Rows() const { return table.Rows(); }
  std::size_t Columns() const { return table.Columns(); }
  double operator()(std::size_t r, std::size_t c) const { return table(r, c); }

 private:
  cow_2DArray<double> table;
  bool allowEmptyFirstRow = false;
  cls_Uid uid;
};

extern template class fw_PersistentClass<kmaC_MaterialTable, mem_Allocated>;
