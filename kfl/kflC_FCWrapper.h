#pragma once
// The filter container as a model extension.
#include "kfl/kflC_FilterContainer.h"
#include "platform/model/mdl_ExtensionWrapper.h"

template <>
struct mdl_WrapperTraits<kflC_FilterContainer> {
  static constexpr const char* kClassName = "kflC_FCWrapper";
  static constexpr int kVersion = kflC_Filter::kVersion;
  static constexpr unsigned TypeId() { return fw_TypeId(849, 13); }
};

using kflC_FCWrapper = mdl_ExtensionWrapper<kflC_FilterContainer>;
