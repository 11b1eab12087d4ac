#pragma once
// Amplitudes of every kind by name ("amplitudes").
#include "framework/fw_Field.h"
#include "kam/kamC_Amplitude.h"
#include "platform/model/mdl_MapString2ObjCow.h"

template <>
struct mdl_MapTraits<kamC_Amplitude> {
  static constexpr const char* kClassName = "kamC_AmplitudeContainer";
  static constexpr const char* kRepositoryName = "amplitudes";
  static constexpr int kVersion = kamC_Amplitude::kVersion;
  static constexpr unsigned TypeId() { return fw_TypeId(580, 16); }
};

using kamC_AmplitudeContainer = mdl_MapString2ObjCow<kamC_Amplitude>;
