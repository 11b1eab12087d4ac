#pragma once
// The model's container of remeshing rules ("remeshingRules"). The rules are reached only from
// the model's own container, so this shortcut is the rule shortcut's owner itself.
#include "framework/fw_Field.h"
#include "kar/karC_RemeshingRuleCont.h"
#include "platform/model/ddr_RepositoryShortcut.h"

class karC_RemeshingRuleContInModelShortcut
    : public ddr_RepositoryShortcut<karC_RemeshingRuleContInModelShortcut, ddr_ShortcutIMPL<karC_RemeshingRuleCont>> {
 public:
  static constexpr const char* kClassName = "karC_RemeshingRuleContInModelShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(855, 5); }
};
