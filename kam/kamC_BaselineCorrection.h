#pragma once
// A baseline correction of a tabular or equally spaced amplitude: the end times of the
// correction intervals, ascending from zero on.
#include "framework/fw_PersistentClass.h"
#include "framework/fw_Field.h"
#include "platform/base/bas_Alloc.h"
#include "platform/base/cow_List.h"
#include "platform/persist/cls_Uid.h"

class cls_ReadVisitor;
class cls_WriteVisitor;
class cls_ClassRegistrar;

class kamC_BaselineCorrection : public fw_PersistentClass<kamC_BaselineCorrection, mem_Allocated> {
 public:
  static constexpr const char* kClassName = "kamC_BaselineCorrection";
  static constexpr const char* kScriptName = "BaselineCorrection";
  static constexpr int kVersion = 424;
  static constexpr unsigned TypeId() { return fw_TypeId(580, 15); }

  static constexpr auto Fields() {
    using C = kamC_BaselineCorrection;
    return std::tuple{
        fw_Field{"intervals", 0, "intervals", &C::intervals},
    };
  }

  kamC_BaselineCorrection() = default;
  explicit kamC_BaselineCorrection(cow_List<double> v) : intervals(std::move(v)) {}
  explicit kamC_BaselineCorrection(const cls_ReadVisitor& r);
  virtual ~kamC_BaselineCorrection() = default;
  virtual void AssertValid() const;

  const cls_Uid& GetUid() const { return uid; }
  const cow_List<double>& GetIntervals() const { return intervals; }
  void SetIntervals(const cow_List<double>& v) { intervals = v; }

 private:
  cow_List<double> intervals;
  cls_Uid uid;
};

extern template class fw_PersistentClass<kamC_BaselineCorrection, mem_Allocated>;
