#pragma once
// The task of the optimization module: the algorithm and the settings every kind shares.
#include <cstdint>
#include <tuple>

#include "kop/kopC_Task.h"
#include "kop/kopC_Enums.h"

class kopC_OrimTask : public kopC_Task {
 public:
  using BaseClass = kopC_Task;
  using RootClass = kopC_BaseOptimization;
  static constexpr const char* kClassName = "kopC_OrimTask";
  // The item of the task container as scripts name it; each kind constructs under its own name.
  static constexpr const char* kScriptName = "OptimizationTask";
  static constexpr int kVersion = 2204;
  static constexpr unsigned TypeId() { return fw_TypeId(932, 7); }
  // Persistent fields in write order; the kinds write this part's fields first.
  static constexpr auto OrimTaskFields() {
    using C = kopC_OrimTask;
    return std::tuple_cat(kopC_Task::TaskFields(), std::tuple{
        fw_Field{"algorithm", 8, "algorithm", &C::algorithm},
        fw_Field{"tessarSensitivities", 100, "tessarSensitivities", &C::tessarSensitivities},
        fw_Field{"groupOperator", 101, "groupOperator", &C::groupOperator},
    });
  }

  // Every member of the part and of its bases, for the scripting access of the metadata.
  static constexpr auto Fields() { return OrimTaskFields(); }
  static void InitializeMetadata(cls_ClassRegistrar& registrar);
  static void CowDtor(void* p);
  // A copy of the task as its own kind; a kind this module does not know is refused with code 1.
  kopC_OrimTask* Copy() const { return static_cast<kopC_OrimTask*>(DoCopy()); }
  kopC_BaseOptimization* DoCopy() const override;
  bool IsGeneral() const { return algorithm == kopC_AlgorithmEnm::GENERAL_OPTIMIZATION; }
  // The rules every kind runs last: the general-only settings, then the contents.
  void AssertValidTask() const;

  kopC_AlgorithmEnm GetAlgorithm() const { return algorithm; }
  void SetAlgorithm(kopC_AlgorithmEnm v) { algorithm = v; }
  bool GetTessarSensitivities() const { return tessarSensitivities; }
  void SetTessarSensitivities(bool v) { tessarSensitivities = v; }
  bool GetGroupOperator() const { return groupOperator; }
  void SetGroupOperator(bool v) { groupOperator = v; }

 protected:
  kopC_OrimTask() = default;
  kopC_OrimTask(const kopC_OrimTask&) = default;
  kopC_OrimTask& operator=(const kopC_OrimTask&) = default;
  explicit kopC_OrimTask(const cls_ReadVisitor& r);

 protected:
  kopC_AlgorithmEnm algorithm = kopC_AlgorithmEnm::CONDITION_BASED_OPTIMIZATION;
  bool tessarSensitivities = false;
  bool groupOperator = false;
};
