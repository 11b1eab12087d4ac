#pragma once
// A shortcut to a container of amplitudes.
#include "framework/fw_Field.h"
#include "kam/kamC_AmplitudeContainerIMPLSC.h"
#include "platform/model/ddr_Shortcut.h"

class kamC_AmplitudeContainerShortcut : public ddr_Shortcut<kamC_AmplitudeContainerIMPLSC> {
 public:
  static constexpr const char* kClassName = "kamC_AmplitudeContainerShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(580, 21); }
  using ddr_Shortcut::ddr_Shortcut;
  // Rebuilds the concrete shortcut a record names.
  static kamC_AmplitudeContainerShortcut Ctor(const cls_ReadVisitor& r);
};
