#pragma once
// The task container as a model extension.
#include "kop/kopC_TaskContainer.h"
#include "platform/model/mdl_ExtensionWrapper.h"

template <>
struct mdl_WrapperTraits<kopC_TaskContainer> {
  static constexpr const char* kClassName = "kopC_TCWrapper";
  static constexpr int kVersion = kopC_BaseOptimization::kVersion;
  static constexpr unsigned TypeId() { return fw_TypeId(932, 3); }
};

using kopC_TCWrapper = mdl_ExtensionWrapper<kopC_TaskContainer>;
