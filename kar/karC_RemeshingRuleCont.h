#pragma once
// Remeshing rules by name ("remeshingRules").
#include "framework/fw_Field.h"
#include "kar/karC_RemeshingRule.h"
#include "platform/model/mdl_MapString2ObjCow.h"

template <>
struct mdl_MapTraits<karC_RemeshingRule> {
  static constexpr const char* kClassName = "karC_RemeshingRuleCont";
  static constexpr const char* kRepositoryName = "remeshingRules";
  static constexpr int kVersion = 866;
  static constexpr unsigned TypeId() { return fw_TypeId(855, 2); }
};

using karC_RemeshingRuleCont = mdl_MapString2ObjCow<karC_RemeshingRule>;
