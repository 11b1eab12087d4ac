#pragma once
// The baseline correction of any amplitude that can carry one.
#include "framework/fw_Field.h"
#include "kam/kamC_BaselineCorrectionMemberShortcut.h"

class kamC_BaselineCorrectionInAmplitudeShortcut
    : public kamC_BaselineCorrectionMemberShortcut<kamC_BaselineCorrectionInAmplitudeShortcut, kamC_Amplitude> {
 public:
  static constexpr const char* kClassName = "kamC_BaselineCorrectionInAmplitudeShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(580, 25); }
  using kamC_BaselineCorrectionMemberShortcut::kamC_BaselineCorrectionMemberShortcut;
};
