#pragma once
// The baseline correction of an equally spaced amplitude.
#include "framework/fw_Field.h"
#include "kam/kamC_BaselineCorrectionMemberShortcut.h"
#include "kam/kamC_EquallySpaced.h"

class kamC_BaselineCorrectionInEquallySpacedShortcut
    : public kamC_BaselineCorrectionMemberShortcut<kamC_BaselineCorrectionInEquallySpacedShortcut, kamC_EquallySpaced> {
 public:
  static constexpr const char* kClassName = "kamC_BaselineCorrectionInEquallySpacedShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(580, 27); }
  using kamC_BaselineCorrectionMemberShortcut::kamC_BaselineCorrectionMemberShortcut;
};
