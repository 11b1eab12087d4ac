#pragma once
// A shortcut to a container of beam profiles.
#include "framework/fw_Field.h"
#include "kbp/kbpC_BeamProfileContainerIMPLSC.h"
#include "platform/model/ddr_Shortcut.h"

class kbpC_BeamProfileContainerShortcut : public ddr_Shortcut<kbpC_BeamProfileContainerIMPLSC> {
 public:
  static constexpr const char* kClassName = "kbpC_BeamProfileContainerShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(612, 20); }
  using ddr_Shortcut::ddr_Shortcut;
  // Rebuilds the concrete shortcut a record names.
  static kbpC_BeamProfileContainerShortcut Ctor(const cls_ReadVisitor& r);
};
