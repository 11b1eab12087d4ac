#pragma once
// A filter by name inside a filter container.
#include "framework/fw_Field.h"
#include "kfl/kflC_FilterContainerInModelShortcut.h"
#include "kfl/kflC_FilterContainerShortcut.h"
#include "kfl/kflC_FilterIMPLSC.h"
#include "platform/model/ddr_SequenceShortcut.h"

class kflC_FilterInFilterContainerShortcut
    : public ddr_SequenceShortcut<kflC_FilterInFilterContainerShortcut, kflC_FilterIMPLSC, kflC_FilterContainerShortcut> {
 public:
  static constexpr const char* kClassName = "kflC_FilterInFilterContainerShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(849, 9); }
  using ddr_SequenceShortcut::ddr_SequenceShortcut;
  // The filter of that name in the model's own container.
  explicit kflC_FilterInFilterContainerShortcut(const cow_String& name)
      : ddr_SequenceShortcut(kflC_FilterContainerInModelShortcut(), name) {}
};
