#pragma once
// One term of a coupled derived component: an operator over intrinsic components, optionally
// weighted by a table over independent components.
#include <cstdint>

#include "framework/fw_PersistentClass.h"
#include "framework/fw_Field.h"
#include "platform/base/bas_Alloc.h"
#include "platform/persist/cls_Uid.h"
#include "kbe/kbeC_Values.h"
#include "platform/base/cow_2DArray.h"
#include "platform/base/cow_COW.h"
#include "platform/base/cow_List.h"
#include "platform/base/cow_String.h"
#include "platform/base/omu_PrimEnum.h"
#include "kbe/kbeC_ConnectorOptions.h"

class cls_ReadVisitor;
class cls_WriteVisitor;
class cls_ClassRegistrar;

class kbeC_CDCTerm : public fw_PersistentClass<kbeC_CDCTerm, mem_Allocated> {
 public:
  enum class TermOperatorEnm : std::int32_t { RSS = 0, SUM = 1, MACAULEY = 2 };
  enum class TermSignEnm : std::int32_t { POSITIVE = 0, NEGATIVE = 1 };
  enum class IndepCompTypeEnm : std::int32_t { POSITION = 0, MOTION = 1 };
  static constexpr omu_EnumLiteral kTermOperatorLiterals[] = {{"RSS", 0}, {"SUM", 1}, {"MACAULEY", 2}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(TermOperatorEnm) { return kTermOperatorLiterals; }
  static constexpr omu_EnumLiteral kTermSignLiterals[] = {{"POSITIVE", 0}, {"NEGATIVE", 1}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(TermSignEnm) { return kTermSignLiterals; }
  static constexpr omu_EnumLiteral kIndepCompTypeLiterals[] = {{"POSITION", 0}, {"MOTION", 1}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(IndepCompTypeEnm) { return kIndepCompTypeLiterals; }

  static constexpr const char* kClassName = "kbeC_CDCTerm";
  static constexpr const char* kScriptName = "CDCTerm";
  static constexpr int kVersion = 1022;
  static constexpr unsigned TypeId() { return fw_TypeId(680, 45); }

  // Persistent fields in write order (the numbers record the order they were added in).
  static constexpr auto Fields() {
    using C = kbeC_CDCTerm;
    return std::tuple{
        fw_Field{"termOperator", 0, "termOperator", &C::termOperator},
        fw_Field{"termSign", 1, "termSign", &C::termSign},
        fw_Field{"localDependency", 2, "localDependency", &C::localDependency},
        fw_Field{"indepCompType", 3, "indepCompType", &C::indepCompType},
        fw_Field{"tempDependency", 4, "tempDependency", &C::tempDependency},
        fw_Field{"fieldDependencies", 5, "fieldDependencies", &C::fieldDependencies},
        fw_Field{"intrinsicComponents", 6, "intrinsicComponents", &C::intrinsicComponents},
        fw_Field{"indepComponents", 7, "indepComponents", &C::indepComponents},
        fw_Field{"table", 8, "table", &C::table},
        fw_Field{"options", 9, "options", &C::options},
    };
  }

  kbeC_CDCTerm() = default;
  explicit kbeC_CDCTerm(const cls_ReadVisitor& r);
  virtual ~kbeC_CDCTerm() = default;
  virtual void AssertValid() const;

  const cls_Uid& GetUid() const { return uid; }
  TermOperatorEnm GetTermOperator() const { return termOperator; }
  void SetTermOperator(TermOperatorEnm v) { termOperator = v; }
  TermSignEnm GetTermSign() const { return termSign; }
  void SetTermSign(TermSignEnm v) { termSign = v; }
  bool GetLocalDependency() const { return localDependency; }
  void SetLocalDependency(bool v) { localDependency = v; }
  IndepCompTypeEnm GetIndepCompType() const { return indepCompType; }
  void SetIndepCompType(IndepCompTypeEnm v) { indepCompType = v; }
  bool GetTempDependency() const { return tempDependency; }
  void SetTempDependency(bool v) { tempDependency = v; }
  std::int32_t GetFieldDependencies() const { return fieldDependencies; }
  void SetFieldDependencies(std::int32_t v) { fieldDependencies = v; }
  const cow_List<std::int32_t>& GetIntrinsicComponents() const { return intrinsicComponents; }
  void SetIntrinsicComponents(const cow_List<std::int32_t>& v) { intrinsicComponents = v; }
  const cow_List<std::int32_t>& GetIndepComponents() const { return indepComponents; }
  void SetIndepComponents(const cow_List<std::int32_t>& v) { indepComponents = v; }
  const cow_2DArray<double>& GetTable() const { return table; }
  void SetTable(const cow_2DArray<double>& v) { table = v; }
  bool HasOptions() const { return !options.IsNull(); }
  const kbeC_ConnectorOptions& GetOptions() const;
  kbeC_ConnectorOptions& ModifyOptions();
  void SetOptions(const kbeC_ConnectorOptions& v) { options = cow_COW<kbeC_ConnectorOptions>(v); }
  void ClearOptions() { options = cow_COW<kbeC_ConnectorOptions>(); }

 private:
  TermOperatorEnm termOperator = TermOperatorEnm::RSS;
  TermSignEnm termSign = TermSignEnm::POSITIVE;
  bool localDependency = false;
  IndepCompTypeEnm indepCompType = IndepCompTypeEnm::POSITION;
  bool tempDependency = false;
  std::int32_t fieldDependencies = 0;
  cow_List<std::int32_t> intrinsicComponents;
  cow_List<std::int32_t> indepComponents;
  cow_2DArray<double> table;
  cow_COW<kbeC_ConnectorOptions> options;
  cls_Uid uid;
};

extern template class fw_PersistentClass<kbeC_CDCTerm, mem_Allocated>;
