#pragma once
// One activation record of a progressive element activation: the event series that drives it and
// how quickly an element becomes active.
#include <cstdint>

#include "framework/fw_PersistentClass.h"
#include "framework/fw_Field.h"
#include "platform/base/cow_String.h"
#include "platform/base/omu_PrimEnum.h"
#include "platform/base/bas_Alloc.h"
#include "platform/persist/cls_Uid.h"

class cls_ReadVisitor;
class cls_WriteVisitor;
class cls_ClassRegistrar;

class ktbC_ActivateElem : public fw_PersistentClass<ktbC_ActivateElem, mem_Allocated> {
 public:
  // Elements become active at once (INSTANTANEOUS) or over "timeConstantValue" (SPECIFIED).
  enum class timeConstantEnum : std::int32_t { INSTANTANEOUS = 0, SPECIFIED = 1 };
  static constexpr omu_EnumLiteral kTimeConstantLiterals[] = {{"INSTANTANEOUS", 0}, {"SPECIFIED", 1}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(timeConstantEnum) { return kTimeConstantLiterals; }
  static constexpr const char* kClassName = "ktbC_ActivateElem";
  static constexpr const char* kScriptName = "ActivateElements";
  static constexpr int kVersion = 1000;
  static constexpr unsigned TypeId() { return fw_TypeId(772, 11); }
  using timeConstantEnum = timeConstantEnum;

  // Persistent fields in write order (field numbers record the order they were added in).
  static constexpr auto Fields() {
    using C = ktbC_ActivateElem;
    return std::tuple{
        fw_Field{"eventSeries", 0, "eventSeries", &C::eventSeries},
        fw_Field{"timeConstantType", 1, "timeConstant", &C::timeConstantType},
        fw_Field{"timeConstantValue", 2, "timeConstantValue", &C::timeConstantValue},
    };
  }

  ktbC_ActivateElem() = default;
  explicit ktbC_ActivateElem(const cls_ReadVisitor& reader);
  virtual ~ktbC_ActivateElem() = default;
  virtual void AssertValid() const;
  unsigned DynTypeId() const { return TypeId(); }
  const cls_Uid& GetUid() const { return uid; }

  const cow_String& GetEventSeries() const { return eventSeries; }
  void SetEventSeries(const cow_String& v) { eventSeries = v; }
  timeConstantEnum GetTimeConstantType() const { return timeConstantType; }
  void SetTimeConstantType(timeConstantEnum v) { timeConstantType = v; }
  double GetTimeConstantValue() const { return timeConstantValue; }
  void SetTimeConstantValue(double v) { timeConstantValue = v; }

 private:
  cow_String eventSeries;
  timeConstantEnum timeConstantType = timeConstantEnum::INSTANTANEOUS;
  double timeConstantValue = 0.0;
  cls_Uid uid;
};

extern template class fw_PersistentClass<ktbC_ActivateElem, mem_Allocated>;
