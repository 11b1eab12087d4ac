#pragma once
// The constraint container as a model extension.
#include "kco/kcoC_ConstraintContainer.h"
#include "platform/model/mdl_ExtensionWrapper.h"

template <>
struct mdl_WrapperTraits<kcoC_ConstraintContainer> {
  static constexpr const char* kClassName = "kcoC_CCWrapper";
  static constexpr int kVersion = kcoC_Constraint::kVersion;
  static constexpr unsigned TypeId() { return fw_TypeId(720, 20); }
};

using kcoC_CCWrapper = mdl_ExtensionWrapper<kcoC_ConstraintContainer>;
