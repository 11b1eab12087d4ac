#pragma once
// The correlation of one component of a random excitation: how its sources correlate, with the
// data that the approach takes.
#include <cstdint>

#include "framework/fw_PersistentClass.h"
#include "framework/fw_Field.h"
#include "platform/base/bas_Alloc.h"
#include "platform/base/cow_List.h"
#include "platform/base/omu_PrimEnum.h"
#include "platform/persist/cls_Uid.h"

class cls_ReadVisitor;
class cls_WriteVisitor;
class cls_ClassRegistrar;

class kamC_CorrelationComponent : public fw_PersistentClass<kamC_CorrelationComponent, mem_Allocated> {
 public:
  enum class CorrelationApproachEnm : std::int32_t { CORRELATED = 0, UNCORRELATED = 1, MOVING_NOISE = 2, USER = 3 };
  // The table lists USER before MOVING_NOISE although their values run the other way; both the
  // order and the values belong to the stored format.
  static constexpr omu_EnumLiteral kCorrelationApproachLiterals[] = {
      {"CORRELATED", 0}, {"UNCORRELATED", 1}, {"USER", 3}, {"MOVING_NOISE", 2}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(CorrelationApproachEnm) { return kCorrelationApproachLiterals; }

  static constexpr const char* kClassName = "kamC_CorrelationComponent";
  static constexpr const char* kScriptName = "CorrelationComponent";
  static constexpr int kVersion = 424;
  static constexpr unsigned TypeId() { return fw_TypeId(580, 14); }

  static constexpr auto Fields() {
    using C = kamC_CorrelationComponent;
    return std::tuple{
        fw_Field{"approach", 0, "approach", &C::approach},
        fw_Field{"dataList", 1, "dataList", &C::dataList},
    };
  }

  kamC_CorrelationComponent() = default;
  explicit kamC_CorrelationComponent(const cls_ReadVisitor& r);
  virtual ~kamC_CorrelationComponent() = default;
  virtual void AssertValid() const;

  const cls_Uid& GetUid() const { return uid; }
  CorrelationApproachEnm GetApproach() const { return approach; }
  void SetApproach(CorrelationApproachEnm v) { approach = v; }
  const cow_List<double>& GetDataList() const { return dataList; }
  void SetDataList(const cow_List<double>& v) { dataList = v; }

 private:
  CorrelationApproachEnm approach = CorrelationApproachEnm::CORRELATED;
  cow_List<double> dataList{1.0};
  cls_Uid uid;
};

extern template class fw_PersistentClass<kamC_CorrelationComponent, mem_Allocated>;
