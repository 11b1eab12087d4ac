#pragma once
// The implementation base of every shortcut to a container of amplitudes.
#include "framework/fw_Field.h"
#include "kam/kamC_AmplitudeContainer.h"
#include "platform/model/ddr_ShortcutIMPL.h"

class kamC_AmplitudeContainerIMPLSC : public ddr_ShortcutIMPL<kamC_AmplitudeContainer> {
 public:
  static constexpr const char* kClassName = "kamC_AmplitudeContainerIMPLSC";
  static constexpr unsigned TypeId() { return fw_TypeId(580, 20); }
};
