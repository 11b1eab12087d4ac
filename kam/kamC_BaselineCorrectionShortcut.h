#pragma once
// A shortcut to the baseline correction of an amplitude.
#include "framework/fw_Field.h"
#include "kam/kamC_BaselineCorrectionIMPLSC.h"
#include "platform/model/ddr_Shortcut.h"

class kamC_BaselineCorrectionShortcut : public ddr_Shortcut<kamC_BaselineCorrectionIMPLSC> {
 public:
  static constexpr const char* kClassName = "kamC_BaselineCorrectionShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(580, 24); }
  using ddr_Shortcut::ddr_Shortcut;
  // Rebuilds the concrete shortcut a record names.
  static kamC_BaselineCorrectionShortcut Ctor(const cls_ReadVisitor& r);
};
