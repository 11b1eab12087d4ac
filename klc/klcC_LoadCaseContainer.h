#pragma once
// Load cases by name ("loadCases").
#include "framework/fw_Field.h"
#include "klc/klcC_LoadCase.h"
#include "platform/model/mdl_MapString2ObjCow.h"

template <>
struct mdl_MapTraits<klcC_LoadCase> {
  static constexpr const char* kClassName = "klcC_LoadCaseContainer";
  static constexpr const char* kRepositoryName = "loadCases";
  static constexpr int kVersion = klcC_LoadCase::kVersion;
  static constexpr unsigned TypeId() { return fw_TypeId(732, 3); }
};

using klcC_LoadCaseContainer = mdl_MapString2ObjCow<klcC_LoadCase>;
