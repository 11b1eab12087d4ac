#pragma once
// The implementation base of every shortcut to a beam profile.
#include "framework/fw_Field.h"
#include "kbp/kbpC_BeamProfile.h"
#include "platform/model/ddr_ShortcutIMPL.h"

class kbpC_BeamProfileIMPSC : public ddr_ShortcutIMPL<kbpC_BeamProfile> {
 public:
  static constexpr const char* kClassName = "kbpC_BeamProfileIMPSC";
  static constexpr unsigned TypeId() { return fw_TypeId(612, 16); }
};
