#pragma once
// The implementation base of every shortcut to an amplitude.
#include "framework/fw_Field.h"
#include "kam/kamC_Amplitude.h"
#include "platform/model/ddr_ShortcutIMPL.h"

class kamC_AmplitudeIMPLSC : public ddr_ShortcutIMPL<kamC_Amplitude> {
 public:
  static constexpr const char* kClassName = "kamC_AmplitudeIMPLSC";
  static constexpr unsigned TypeId() { return fw_TypeId(580, 17); }
};
