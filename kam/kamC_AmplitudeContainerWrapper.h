#pragma once
// The amplitude container as a model extension.
#include "kam/kamC_AmplitudeContainer.h"
#include "platform/model/mdl_ExtensionWrapper.h"

template <>
struct mdl_WrapperTraits<kamC_AmplitudeContainer> {
  static constexpr const char* kClassName = "kamC_AmplitudeContainerWrapper";
  static constexpr int kVersion = kamC_Amplitude::kVersion;
  static constexpr unsigned TypeId() { return fw_TypeId(580, 28); }
};

using kamC_AmplitudeContainerWrapper = mdl_ExtensionWrapper<kamC_AmplitudeContainer>;
