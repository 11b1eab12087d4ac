#pragma once
// A load case by name inside the model's load case container.
#include "framework/fw_Field.h"
#include "klc/klcC_LoadCaseContainerInModelShortcut.h"
#include "klc/klcC_LoadCaseIMPLSC.h"
#include "platform/model/ddr_SequenceShortcut.h"

class klcC_LoadCaseInLoadCaseContainerShortcut
    : public ddr_SequenceShortcut<klcC_LoadCaseInLoadCaseContainerShortcut, klcC_LoadCaseIMPLSC,
                                  klcC_LoadCaseContainerInModelShortcut> {
 public:
  static constexpr const char* kClassName = "klcC_LoadCaseInLoadCaseContainerShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(732, 6); }
  using ddr_SequenceShortcut::ddr_SequenceShortcut;
  // The load case of that name in the model's own container.
  explicit klcC_LoadCaseInLoadCaseContainerShortcut(const cow_String& name)
      : ddr_SequenceShortcut(klcC_LoadCaseContainerInModelShortcut(), name) {}
};
