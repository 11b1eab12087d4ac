#pragma once
// Amplitudes of every kind by name ("amplitudes").
#include "framework/fw_Field.h"
#include "kam/kamC_Amplitude.h"
#include "platform/model/mdl_MapString2ObjCow.h"

// The shortcuts' refusal of a name the container does not hold: an empty container has the
// module's message; otherwise the framework's.
void kamC_RefuseMissingAmplitude(std::size_t count);

template <>
struct mdl_MapTraits<kamC_Amplitude> {
  static constexpr const char* kClassName = "kamC_AmplitudeContainer";
  static constexpr const char* kRepositoryName = "amplitudes";
  static constexpr int kVersion = kamC_Amplitude::kVersion;
  static constexpr unsigned TypeId() { return fw_TypeId(580, 16); }
  static void RefuseMissing(std::size_t count) { kamC_RefuseMissingAmplitude(count); }
};

using kamC_AmplitudeContainer = mdl_MapString2ObjCow<kamC_Amplitude>;
