#pragma once
// The table collection container as a model extension.
#include "ktb/ktbC_TableCollContainer.h"
#include "platform/model/mdl_ExtensionWrapper.h"

template <>
struct mdl_WrapperTraits<ktbC_TableCollContainer> {
  static constexpr const char* kClassName = "ktbC_TCWrapper";
  static constexpr int kVersion = ktbC_TableCollContainer::kVersion;
  static constexpr unsigned TypeId() { return fw_TypeId(772, 20); }
};

using ktbC_TCWrapper = mdl_ExtensionWrapper<ktbC_TableCollContainer>;
