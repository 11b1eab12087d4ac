#pragma once
// The objective function of the optimization module: a target over a list of objectives.
#include <cstdint>
#include <tuple>

#include "kop/kopC_ObjectiveFunction.h"
#include "kop/kopC_Enums.h"
#include "platform/base/cow_List.h"
#include "kop/kopC_Objective.h"
#include "platform/base/cow_COW.h"

class kopC_OrimObjectiveFunction : public kopC_ObjectiveFunction {
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
  void DBWrite(const cls_WriteVisitor& w) const override;
  kopC_OrimObjectiveFunction* Copy() const override;
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }
  static void InitializeMetadata(cls_ClassRegistrar& registrar);
  static void CowDtor(void* p);
  bool operator==(const kopC_OrimObjectiveFunction& o) const;
  bool operator!=(const kopC_OrimObjectiveFunction& o) const { return !(*this == o); }
  using ObjectiveHandle = cow_COW<kopC_Objective, cow_Virtual<kopC_Objective>>;
  // The entries that are not suppressed.
  std::size_t UnsuppressedCount() const;

  kopC_TargetEnm GetTarget() const { return target; }
  void SetTarget(kopC_TargetEnm v) { target = v; }
  const cow_List<ObjectiveHandle>& GetObjectives() const { return objectives; }
  void SetObjectives(const cow_List<ObjectiveHandle>& v) { objectives = v; }

 protected:
  bool SameAs(const kopC_ObjectiveFunction& o) const override;

 private:
  kopC_TargetEnm target = kopC_TargetEnm::MINIMIZE;
  cow_List<ObjectiveHandle> objectives;
};
