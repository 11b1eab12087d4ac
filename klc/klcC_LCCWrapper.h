#pragma once
// The load case container as a model extension. The module's architecture table has no row for
// it; its type id takes the first number after the table's last row.
#include "klc/klcC_LoadCaseContainer.h"
#include "platform/model/mdl_ExtensionWrapper.h"

template <>
struct mdl_WrapperTraits<klcC_LoadCaseContainer> {
  static constexpr const char* kClassName = "klcC_LCCWrapper";
  static constexpr int kVersion = klcC_LoadCase::kVersion;
  static constexpr unsigned TypeId() { return fw_TypeId(732, 8); }
};

using klcC_LCCWrapper = mdl_ExtensionWrapper<klcC_LoadCaseContainer>;
