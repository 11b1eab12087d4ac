#pragma once
// A benchmark-only class with a table of doubles, kept in a model container ("benchTables"), so
// that the database benchmark stores tables beside the adaptive mesh controls.
#include <tuple>

#include "framework/fw_Field.h"
#include "platform/base/cow_2DArray.h"
#include "platform/base/cow_COW.h"
#include "platform/model/mdl_ExtensionWrapper.h"
#include "platform/model/mdl_MapString2ObjCow.h"

constexpr unsigned kBenchKey = 997;

class bnhT_Table : public mem_Allocated {
 public:
  static constexpr const char* kClassName = "bnhT_Table";
  static constexpr int kVersion = 1;
  static constexpr unsigned TypeId() { return fw_TypeId(kBenchKey, 1); }
  static constexpr auto Fields() {
    using C = bnhT_Table;
    return std::tuple{
        fw_Field{"description", 0, "description", &C::description},
        fw_Field{"table", 1, "table", &C::table},
    };
  }

  bnhT_Table() = default;
  explicit bnhT_Table(const cls_ReadVisitor& r);
  void DBWrite(const cls_WriteVisitor& w) const;
  virtual ~bnhT_Table() = default;
  virtual bnhT_Table* Copy() const;
  static void InitializeMetadata(cls_ClassRegistrar& registrar);
  static void CowDtor(void* p);
  bool operator==(const bnhT_Table& o) const;
  const cls_Uid& GetUid() const { return uid; }

  cow_String description;
  cow_2DArray<double> table;

 private:
  cls_Uid uid;
};

template <>
struct mdl_MapTraits<bnhT_Table> {
  static constexpr const char* kClassName = "bnhT_TableCont";
  static constexpr const char* kRepositoryName = "benchTables";
  static constexpr int kVersion = 1;
  static constexpr unsigned TypeId() { return fw_TypeId(kBenchKey, 2); }
};
using bnhT_TableCont = mdl_MapString2ObjCow<bnhT_Table>;

template <>
struct mdl_WrapperTraits<bnhT_TableCont> {
  static constexpr const char* kClassName = "bnhT_TableWrapper";
  static constexpr int kVersion = 1;
  static constexpr unsigned TypeId() { return fw_TypeId(kBenchKey, 3); }
};
using bnhT_TableWrapper = mdl_ExtensionWrapper<bnhT_TableCont>;

// Starts the library (when loading it has not) and registers the benchmark classes once.
void bnhT_Start();
