#pragma once
// Optimization tasks of every kind by name ("optimizationTasks").
#include "framework/fw_Field.h"
#include "kop/kopC_BaseOptimization.h"
#include "platform/model/mdl_MapString2ObjCow.h"

template <>
struct mdl_MapTraits<kopC_BaseOptimization> {
  static constexpr const char* kClassName = "kopC_TaskContainer";
  static constexpr const char* kRepositoryName = "optimizationTasks";
  static constexpr int kVersion = kopC_BaseOptimization::kVersion;
  static constexpr unsigned TypeId() { return fw_TypeId(932, 2); }
};

using kopC_TaskContainer = mdl_MapString2ObjCow<kopC_BaseOptimization>;
