#pragma once
// Stop conditions of a task by name ("stopConditions").
#include "framework/fw_Field.h"
#include "kop/kopC_StopCondition.h"
#include "platform/model/mdl_MapString2ObjCow.h"

template <>
struct mdl_MapTraits<kopC_StopCondition> {
  static constexpr const char* kClassName = "kopC_StopConditionContainer";
  static constexpr const char* kRepositoryName = "stopConditions";
  static constexpr int kVersion = kopC_StopCondition::kVersion;
  static constexpr unsigned TypeId() { return fw_TypeId(932, 53); }
};

using kopC_StopConditionContainer = mdl_MapString2ObjCow<kopC_StopCondition>;
