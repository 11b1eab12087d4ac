#pragma once
// The material container as a model extension.
#include "kma/kmaC_MaterialContainer.h"
#include "platform/model/mdl_ExtensionWrapper.h"

template <>
struct mdl_WrapperTraits<kmaC_MaterialContainer> {
  static constexpr const char* kClassName = "kmaC_MCWrapper";
  static constexpr int kVersion = 203;
  static constexpr unsigned TypeId() { return fw_TypeId(kmaC_kArchKey, 104); }
};

using kmaC_MCWrapper = mdl_ExtensionWrapper<kmaC_MaterialContainer>;
