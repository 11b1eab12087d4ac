#pragma once
// An event series: time-stamped events of the type named by "eventSeriesType", one row each in
// "data" (the time, the three coordinates, then the field values), read from "sourceName" and
// created in the step "createStepName"; its positions pass through "transformations" in order.
#include <cstdint>

#include "framework/fw_PersistentClass.h"
#include "framework/fw_Field.h"
#include "platform/base/cow_2DArray.h"
#include "platform/base/cow_COW.h"
#include "platform/base/cow_List.h"
#include "platform/base/cow_String.h"
#include "platform/base/omu_PrimEnum.h"
#include "platform/base/bas_Alloc.h"
#include "platform/persist/cls_Uid.h"

class cls_ReadVisitor;
class cls_WriteVisitor;
class cls_ClassRegistrar;
class ktbC_Transformation;

class ktbC_EventSeries : public fw_PersistentClass<ktbC_EventSeries, mem_Allocated> {
 public:
  // Whether the event times count from the start of the step or of the analysis.
  enum class TimeSpanEnm : std::int32_t { STEP_TIME = 0, TOTAL_TIME = 1 };
  static constexpr omu_EnumLiteral kTimeSpanLiterals[] = {{"STEP_TIME", 0}, {"TOTAL_TIME", 1}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(TimeSpanEnm) { return kTimeSpanLiterals; }
  static constexpr const char* kClassName = "ktbC_EventSeries";
  static constexpr const char* kScriptName = "EventSeriesData";
  static constexpr int kVersion = 1000;
  static constexpr unsigned TypeId() { return fw_TypeId(772, 9); }
  // The kind of one of the series' transformations: NONE leaves the positions as they are;
  // TRANSLATE moves them by the transformation's "vector"; ROTATE turns them by its "angle"
  // (degrees) about the axis through its "point" along its "vector".
  enum class TransformEnm : std::int32_t { NONE = 0, TRANSLATE = 1, ROTATE = 2 };
  static constexpr omu_EnumLiteral kTransformLiterals[] = {{"NONE", 0}, {"TRANSLATE", 1}, {"ROTATE", 2}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(TransformEnm) { return kTransformLiterals; }
  using TransformationHandle = cow_COW<ktbC_Transformation, cow_Virtual<ktbC_Transformation>>;
  static const char* constructorCmd() { return kScriptName; }
  static const char* transformationCmd() { return "transformation"; }

  // Persistent fields in write order (field numbers record the order they were added in).
  static constexpr auto Fields() {
    using C = ktbC_EventSeries;
    return std::tuple{
        fw_Field{"eventSeriesType", 0, "eventSeriesType", &C::eventSeriesType},
        fw_Field{"sourceName", 1, "sourceName", &C::sourceName},
        fw_Field{"createStepName", 2, "createStepName", &C::createStepName},
        fw_Field{"timeSpan", 3, "timeSpan", &C::timeSpan},
        fw_Field{"data", 4, "data", &C::data},
        fw_Field{"transformations", 5, "transformations", &C::transformations},
    };
  }

  // Out of line: only the source knows the transformations' class, so this header need not.
  ktbC_EventSeries();
  ktbC_EventSeries(const ktbC_EventSeries& o);
  ktbC_EventSeries& operator=(const ktbC_EventSeries& o);
  explicit ktbC_EventSeries(const cls_ReadVisitor& reader);
  virtual ~ktbC_EventSeries();
  virtual void AssertValid() const;
  unsigned DynTypeId() const { return TypeId(); }
  const cls_Uid& GetUid() const { return uid; }

  const cow_String& GetEventSeriesType() const { return eventSeriesType; }
  void SetEventSeriesType(const cow_String& v) { eventSeriesType = v; }
  const cow_String& GetSourceName() const { return sourceName; }
  void SetSourceName(const cow_String& v) { sourceName = v; }
  const cow_String& GetCreateStepName() const { return createStepName; }
  void SetCreateStepName(const cow_String& v) { createStepName = v; }
  TimeSpanEnm GetTimeSpan() const { return timeSpan; }
  void SetTimeSpan(TimeSpanEnm v) { timeSpan = v; }
  const cow_2DArray<double>& GetData() const { return data; }
  void SetData(const cow_2DArray<double>& v) { data = v; }
  const cow_List<TransformationHandle>& GetTransformations() const { return transformations; }
  void SetTransformations(const cow_List<TransformationHandle>& v);

 private:
  cow_String eventSeriesType;
  cow_String sourceName;
  cow_String createStepName;
  TimeSpanEnm timeSpan = TimeSpanEnm::STEP_TIME;
  cow_2DArray<double> data;
  cow_List<TransformationHandle> transformations;
  cls_Uid uid;
};

extern template class fw_PersistentClass<ktbC_EventSeries, mem_Allocated>;
