#pragma once
// Filters of every kind by name ("filters").
#include "framework/fw_Field.h"
#include "kfl/kflC_Filter.h"
#include "platform/model/mdl_MapString2ObjCow.h"

template <>
struct mdl_MapTraits<kflC_Filter> {
  static constexpr const char* kClassName = "kflC_FilterContainer";
  static constexpr const char* kRepositoryName = "filters";
  static constexpr int kVersion = kflC_Filter::kVersion;
  static constexpr unsigned TypeId() { return fw_TypeId(849, 6); }
};

using kflC_FilterContainer = mdl_MapString2ObjCow<kflC_Filter>;
