#pragma once
// Variables of a task by name ("variables").
#include "framework/fw_Field.h"
#include "kop/kopC_Variable.h"
#include "platform/model/mdl_MapString2ObjCow.h"

template <>
struct mdl_MapTraits<kopC_Variable> {
  static constexpr const char* kClassName = "kopC_VariableContainer";
  static constexpr const char* kRepositoryName = "variables";
  static constexpr int kVersion = kopC_Variable::kVersion;
  static constexpr unsigned TypeId() { return fw_TypeId(932, 63); }
};

using kopC_VariableContainer = mdl_MapString2ObjCow<kopC_Variable>;
