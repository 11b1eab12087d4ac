#pragma once
// The profile container as a model extension.
#include "kbp/kbpC_BeamProfileContainer.h"
#include "platform/model/mdl_ExtensionWrapper.h"

template <>
struct mdl_WrapperTraits<kbpC_BeamProfileContainer> {
  static constexpr const char* kClassName = "kbpC_BPCWrapper";
  static constexpr int kVersion = kbpC_BeamProfile::kVersion;
  static constexpr unsigned TypeId() { return fw_TypeId(612, 22); }
};

using kbpC_BPCWrapper = mdl_ExtensionWrapper<kbpC_BeamProfileContainer>;
