#pragma once
// The implementation base of every shortcut to a remeshing rule.
#include "framework/fw_Field.h"
#include "kar/karC_RemeshingRule.h"
#include "platform/model/ddr_ShortcutIMPL.h"

class karC_RemeshingRuleIMPLSC : public ddr_ShortcutIMPL<karC_RemeshingRule> {
 public:
  static constexpr const char* kClassName = "karC_RemeshingRuleIMPLSC";
  static constexpr unsigned TypeId() { return fw_TypeId(855, 3); }
};
