#pragma once
// A remeshing rule by name inside the model's rule container.
#include "framework/fw_Field.h"
#include "kar/karC_RemeshingRuleContInModelShortcut.h"
#include "kar/karC_RemeshingRuleIMPLSC.h"
#include "platform/model/ddr_SequenceShortcut.h"

class karC_RemeshingRuleInRemeshingRuleContShortcut
    : public ddr_SequenceShortcut<karC_RemeshingRuleInRemeshingRuleContShortcut, karC_RemeshingRuleIMPLSC,
                                  karC_RemeshingRuleContInModelShortcut> {
 public:
  static constexpr const char* kClassName = "karC_RemeshingRuleInRemeshingRuleContShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(855, 4); }
  using ddr_SequenceShortcut::ddr_SequenceShortcut;
  // The rule of that name in the model's own container.
  explicit karC_RemeshingRuleInRemeshingRuleContShortcut(const cow_String& name)
      : ddr_SequenceShortcut(karC_RemeshingRuleContInModelShortcut(), name) {}
};
