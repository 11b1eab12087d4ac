#pragma once
// The implementation base of every shortcut to a container of beam profiles.
#include "framework/fw_Field.h"
#include "kbp/kbpC_BeamProfileContainer.h"
#include "platform/model/ddr_ShortcutIMPL.h"

class kbpC_BeamProfileContainerIMPLSC : public ddr_ShortcutIMPL<kbpC_BeamProfileContainer> {
 public:
  static constexpr const char* kClassName = "kbpC_BeamProfileContainerIMPLSC";
  static constexpr unsigned TypeId() { return fw_TypeId(612, 19); }
};
