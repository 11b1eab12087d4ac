#pragma once
// The rule container as a model extension. The module's architecture table has no row for it;
// its type id takes the first number after the table's last row.
#include "kar/karC_RemeshingRuleCont.h"
#include "platform/model/mdl_ExtensionWrapper.h"

template <>
struct mdl_WrapperTraits<karC_RemeshingRuleCont> {
  static constexpr const char* kClassName = "karC_RRWrapper";
  static constexpr int kVersion = 866;
  static constexpr unsigned TypeId() { return fw_TypeId(855, 6); }
};

using karC_RRWrapper = mdl_ExtensionWrapper<karC_RemeshingRuleCont>;
