#pragma once
// The baseline correction of a tabular amplitude.
#include "framework/fw_Field.h"
#include "kam/kamC_BaselineCorrectionMemberShortcut.h"
#include "kam/kamC_Tabular.h"

class kamC_BaselineCorrectionInTabularShortcut
    : public kamC_BaselineCorrectionMemberShortcut<kamC_BaselineCorrectionInTabularShortcut, kamC_Tabular> {
 public:
  static constexpr const char* kClassName = "kamC_BaselineCorrectionInTabularShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(580, 26); }
  using kamC_BaselineCorrectionMemberShortcut::kamC_BaselineCorrectionMemberShortcut;
};
