#pragma once
// The event series container as a model extension.
#include "ktb/ktbC_EventSeriesCont.h"
#include "platform/model/mdl_ExtensionWrapper.h"

template <>
struct mdl_WrapperTraits<ktbC_EventSeriesCont> {
  static constexpr const char* kClassName = "ktbC_ESWrapper";
  static constexpr int kVersion = ktbC_EventSeriesCont::kVersion;
  static constexpr unsigned TypeId() { return fw_TypeId(772, 22); }
};

using ktbC_ESWrapper = mdl_ExtensionWrapper<ktbC_EventSeriesCont>;
