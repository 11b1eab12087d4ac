#pragma once
// One transformation of the positions of an event series.
#include <cstdint>

#include "framework/fw_PersistentClass.h"
#include "framework/fw_Field.h"
#include "ktb/ktbC_EventSeries.h"
#include "platform/base/cow_List.h"
#include "platform/base/omu_PrimEnum.h"
#include "platform/base/bas_Alloc.h"
#include "platform/persist/cls_Uid.h"

class cls_ReadVisitor;
class cls_WriteVisitor;
class cls_ClassRegistrar;

class ktbC_Transformation : public fw_PersistentClass<ktbC_Transformation, mem_Allocated> {
 public:
  // The kind is the event series' own enumeration.
  using TransformEnm = ktbC_EventSeries::TransformEnm;
  static constexpr const char* kClassName = "ktbC_Transformation";
  static constexpr const char* kScriptName = "Transformation";
  static constexpr int kVersion = 1000;
  static constexpr unsigned TypeId() { return fw_TypeId(772, 72); }

  // Persistent fields in write order (field numbers record the order they were added in).
  static constexpr auto Fields() {
    using C = ktbC_Transformation;
    return std::tuple{
        fw_Field{"transformType", 0, "transformType", &C::transformType},
        fw_Field{"vector", 1, "vector", &C::vector},
        fw_Field{"point", 2, "point", &C::point},
        fw_Field{"angle", 3, "angle", &C::angle},
    };
  }

  ktbC_Transformation() = default;
  explicit ktbC_Transformation(const cls_ReadVisitor& reader);
  virtual ~ktbC_Transformation() = default;
  virtual void AssertValid() const;
  unsigned DynTypeId() const { return TypeId(); }
  const cls_Uid& GetUid() const { return uid; }

  TransformEnm GetTransformType() const { return transformType; }
  void SetTransformType(TransformEnm v) { transformType = v; }
  const cow_List<double>& GetVector() const { return vector; }
  void SetVector(const cow_List<double>& v) { vector = v; }
  const cow_List<double>& GetPoint() const { return point; }
  void SetPoint(const cow_List<double>& v) { point = v; }
  double GetAngle() const { return angle; }
  void SetAngle(double v) { angle = v; }

 private:
  TransformEnm transformType = TransformEnm::NONE;
  cow_List<double> vector = {0.0, 0.0, 0.0};
  cow_List<double> point = {0.0, 0.0, 0.0};
  double angle = 0.0;
  cls_Uid uid;
};

extern template class fw_PersistentClass<ktbC_Transformation, mem_Allocated>;
