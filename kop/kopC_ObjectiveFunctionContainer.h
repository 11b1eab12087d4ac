#pragma once
// Objective functions of a task by name ("objectiveFunctions").
#include "framework/fw_Field.h"
#include "kop/kopC_ObjectiveFunction.h"
#include "platform/model/mdl_MapString2ObjCow.h"

template <>
struct mdl_MapTraits<kopC_ObjectiveFunction> {
  static constexpr const char* kClassName = "kopC_ObjectiveFunctionContainer";
  static constexpr const char* kRepositoryName = "objectiveFunctions";
  static constexpr int kVersion = kopC_ObjectiveFunction::kVersion;
  static constexpr unsigned TypeId() { return fw_TypeId(932, 34); }
};

using kopC_ObjectiveFunctionContainer = mdl_MapString2ObjCow<kopC_ObjectiveFunction>;
