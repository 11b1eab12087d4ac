#pragma once
// The objective function of the optimization module: a target over a list of objectives.
#include <cstdint>
#include <tuple>

#include "framework/fw_PersistentClass.h"
#include "kop/kopC_ObjectiveFunction.h"
#include "kop/kopC_Enums.h"
#include "platform/base/cow_List.h"
#include "kop/kopC_Objective.h"
#include "platform/base/cow_COW.h"

class kopC_OrimObjectiveFunction : public fw_PersistentClass<kopC_OrimObjectiveFunction, kopC_ObjectiveFunction> {
 public:
  using BaseClass = kopC_ObjectiveFunction;
  using RootClass = kopC_ObjectiveFunction;
  static constexpr const char* kClassName = "kopC_OrimObjectiveFunction";
  static constexpr const char* kScriptName = "ObjectiveFunction";
  static constexpr int kVersion = 1554;
  static constexpr unsigned TypeId() { return fw_TypeId(932, 32); }
  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = kopC_OrimObjectiveFunction;
    return std::tuple{
        fw_Field{"target", 0, "target", &C::target},
        fw_Field{"objectives", 1, "objectives", &C::objectives},
    };
  }

  kopC_OrimObjectiveFunction() = default;
  explicit kopC_OrimObjectiveFunction(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }
  using ObjectiveHandle = cow_COW<kopC_Objective, cow_Virtual<kopC_Objective>>;
  // The entries that are not suppressed.
  std::size_t UnsuppressedCount() const;

  kopC_TargetEnm GetTarget() const { return target; }
  void SetTarget(kopC_TargetEnm v) { target = v; }
  const cow_List<ObjectiveHandle>& GetObjectives() const { return objectives; }
  void SetObjectives(const cow_List<ObjectiveHandle>& v) { objectives = v; }

 private:
  kopC_TargetEnm target = kopC_TargetEnm::MINIMIZE;
  cow_List<ObjectiveHandle> objectives;
};

extern template class fw_PersistentClass<kopC_OrimObjectiveFunction, kopC_ObjectiveFunction>;
