#pragma once
// A shortcut to an amplitude of any kind.
#include "framework/fw_Field.h"
#include "kam/kamC_AmplitudeIMPLSC.h"
#include "platform/model/ddr_Shortcut.h"

class kamC_AmplitudeShortcut : public ddr_Shortcut<kamC_AmplitudeIMPLSC> {
 public:
  static constexpr const char* kClassName = "kamC_AmplitudeShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(580, 18); }
  using ddr_Shortcut::ddr_Shortcut;
  // Rebuilds the concrete shortcut a record names.
  static kamC_AmplitudeShortcut Ctor(const cls_ReadVisitor& r);
};
