#pragma once
// A shortcut to a beam profile of any kind.
#include "framework/fw_Field.h"
#include "kbp/kbpC_BeamProfileIMPSC.h"
#include "platform/model/ddr_Shortcut.h"

class kbpC_BeamProfileShortcut : public ddr_Shortcut<kbpC_BeamProfileIMPSC> {
 public:
  static constexpr const char* kClassName = "kbpC_BeamProfileShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(612, 17); }
  using ddr_Shortcut::ddr_Shortcut;
  // Rebuilds the concrete shortcut a record names.
  static kbpC_BeamProfileShortcut Ctor(const cls_ReadVisitor& r);
};
