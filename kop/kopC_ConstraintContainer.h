#pragma once
// Constraints of a task by name ("optimizationConstraints").
#include "framework/fw_Field.h"
#include "kop/kopC_Constraint.h"
#include "platform/model/mdl_MapString2ObjCow.h"

template <>
struct mdl_MapTraits<kopC_Constraint> {
  static constexpr const char* kClassName = "kopC_ConstraintContainer";
  static constexpr const char* kRepositoryName = "optimizationConstraints";
  static constexpr int kVersion = kopC_Constraint::kVersion;
  static constexpr unsigned TypeId() { return fw_TypeId(932, 43); }
};

using kopC_ConstraintContainer = mdl_MapString2ObjCow<kopC_Constraint>;
