#pragma once
// Geometric restrictions of a task by name ("geometricRestrictions").
#include "framework/fw_Field.h"
#include "kop/kopC_GeometricRestriction.h"
#include "platform/model/mdl_MapString2ObjCow.h"

template <>
struct mdl_MapTraits<kopC_GeometricRestriction> {
  static constexpr const char* kClassName = "kopC_GeometricRestrictionContainer";
  static constexpr const char* kRepositoryName = "geometricRestrictions";
  static constexpr int kVersion = kopC_GeometricRestriction::kVersion;
  static constexpr unsigned TypeId() { return fw_TypeId(932, 73); }
};

using kopC_GeometricRestrictionContainer = mdl_MapString2ObjCow<kopC_GeometricRestriction>;
