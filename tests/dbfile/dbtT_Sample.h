#pragma once
// Test-only classes that hold every kind of field the database file stores: numbers, text,
// enumerations, regions, a table, lists of each, an optional member object, a member object held
// by value and a list of objects with null elements. A detail may hold another detail, so that
// rows of one class nest in rows of the same class. The samples live in a model container
// ("samples") registered as an extension.
#include <cstdint>
#include <tuple>

#include "framework/fw_Field.h"
#include "platform/base/cow_2DArray.h"
#include "platform/base/cow_COW.h"
#include "platform/base/cow_List.h"
#include "platform/model/mdl_ExtensionWrapper.h"
#include "platform/model/mdl_MapString2ObjCow.h"
#include "platform/base/omu_PrimEnum.h"
#include "platform/model/rgnC_Region.h"

constexpr unsigned kDbTestKey = 998;

class dbtT_Detail : public mem_Allocated {
 public:
  using Handle = cow_COW<dbtT_Detail, cow_Virtual<dbtT_Detail>>;
  static constexpr const char* kClassName = "dbtT_Detail";
  static constexpr int kVersion = 1;
  static constexpr unsigned TypeId() { return fw_TypeId(kDbTestKey, 1); }
  static constexpr auto Fields() {
    using C = dbtT_Detail;
    return std::tuple{
        fw_Field{"value", 0, "value", &C::value},
        fw_Field{"note", 1, "note", &C::note},
        fw_Field{"inner", 2, "inner", &C::inner},
    };
  }

  dbtT_Detail() = default;
  dbtT_Detail(double v, const char* n) : value(v), note(n) {}
  explicit dbtT_Detail(const cls_ReadVisitor& r);
  void DBWrite(const cls_WriteVisitor& w) const;
  virtual ~dbtT_Detail() = default;
  virtual dbtT_Detail* Copy() const;
  static void InitializeMetadata(cls_ClassRegistrar& registrar);
  static void CowDtor(void* p);
  bool operator==(const dbtT_Detail& o) const;
  const cls_Uid& GetUid() const { return uid; }
  void SetInner(const dbtT_Detail& d) { inner = Handle(d); }

  double value = 0;
  cow_String note;
  Handle inner;

 private:
  cls_Uid uid;
};

class dbtT_Sample : public mem_Allocated {
 public:
  enum class ModeEnm : std::int32_t { FIRST_MODE = 0, SECOND_MODE = 1, THIRD_MODE = 2 };
  static constexpr omu_EnumLiteral kModeLiterals[] = {
      {"FIRST_MODE", 0}, {"SECOND_MODE", 1}, {"THIRD_MODE", 2}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(ModeEnm) { return kModeLiterals; }

  static constexpr const char* kClassName = "dbtT_Sample";
  static constexpr int kVersion = 1;
  static constexpr unsigned TypeId() { return fw_TypeId(kDbTestKey, 2); }
  static constexpr auto Fields() {
    using C = dbtT_Sample;
    return std::tuple{
        fw_Field{"count", 0, "count", &C::count},
        fw_Field{"ratio", 1, "ratio", &C::ratio},
        fw_Field{"enabled", 2, "enabled", &C::enabled},
        fw_Field{"label", 3, "label", &C::label},
        fw_Field{"mode", 4, "mode", &C::mode},
        fw_Field{"region", 5, "region", &C::region},
        fw_Field{"table", 6, "table", &C::table},
        fw_Field{"ints", 7, "ints", &C::ints},
        fw_Field{"doubles", 8, "doubles", &C::doubles},
        fw_Field{"flags", 9, "flags", &C::flags},
        fw_Field{"labels", 10, "labels", &C::labels},
        fw_Field{"regions", 11, "regions", &C::regions},
        fw_Field{"modes", 12, "modes", &C::modes},
        fw_Field{"detail", 13, "detail", &C::detail},
        fw_Field{"fixed", 14, "fixed", &C::fixed},
        fw_Field{"details", 15, "details", &C::details},
    };
  }

  dbtT_Sample() = default;
  explicit dbtT_Sample(const cls_ReadVisitor& r);
  void DBWrite(const cls_WriteVisitor& w) const;
  virtual ~dbtT_Sample() = default;
  virtual dbtT_Sample* Copy() const;
  static void InitializeMetadata(cls_ClassRegistrar& registrar);
  static void CowDtor(void* p);
  bool operator==(const dbtT_Sample& o) const;
  const cls_Uid& GetUid() const { return uid; }

  // Every field away from its default, with the values that stress the file: NaN, infinities,
  // negative zero, extreme integers, quotes, control characters and non-ASCII text, an empty
  // string, nested and null objects.
  static dbtT_Sample Filled();

  std::int32_t count = 0;
  double ratio = 0.5;
  bool enabled = false;
  cow_String label;
  ModeEnm mode = ModeEnm::FIRST_MODE;
  rgnC_Region region;
  cow_2DArray<double> table;
  cow_List<std::int32_t> ints;
  cow_List<double> doubles;
  cow_List<bool> flags;
  cow_List<cow_String> labels;
  cow_List<rgnC_Region> regions;
  cow_List<ModeEnm> modes;
  dbtT_Detail::Handle detail;
  dbtT_Detail fixed;
  cow_List<dbtT_Detail::Handle> details;

 private:
  cls_Uid uid;
};

template <>
struct mdl_MapTraits<dbtT_Sample> {
  static constexpr const char* kClassName = "dbtT_SampleCont";
  static constexpr const char* kRepositoryName = "samples";
  static constexpr int kVersion = 1;
  static constexpr unsigned TypeId() { return fw_TypeId(kDbTestKey, 3); }
};
using dbtT_SampleCont = mdl_MapString2ObjCow<dbtT_Sample>;

template <>
struct mdl_WrapperTraits<dbtT_SampleCont> {
  static constexpr const char* kClassName = "dbtT_SampleWrapper";
  static constexpr int kVersion = 1;
  static constexpr unsigned TypeId() { return fw_TypeId(kDbTestKey, 4); }
};
using dbtT_SampleWrapper = mdl_ExtensionWrapper<dbtT_SampleCont>;

// Starts the library and registers the test classes and the "samples" container once.
void dbtT_Start();
