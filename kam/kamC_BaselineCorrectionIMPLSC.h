#pragma once
// The implementation base of every shortcut to a baseline correction.
#include "framework/fw_Field.h"
#include "kam/kamC_BaselineCorrection.h"
#include "platform/model/ddr_ShortcutIMPL.h"

class kamC_BaselineCorrectionIMPLSC : public ddr_ShortcutIMPL<kamC_BaselineCorrection> {
 public:
  static constexpr const char* kClassName = "kamC_BaselineCorrectionIMPLSC";
  static constexpr unsigned TypeId() { return fw_TypeId(580, 23); }
};
