#pragma once
// The event series type container as a model extension.
#include "ktb/ktbC_EventSeriesTypeCont.h"
#include "platform/model/mdl_ExtensionWrapper.h"

template <>
struct mdl_WrapperTraits<ktbC_EventSeriesTypeCont> {
  static constexpr const char* kClassName = "ktbC_ESTWrapper";
  static constexpr int kVersion = ktbC_EventSeriesTypeCont::kVersion;
  static constexpr unsigned TypeId() { return fw_TypeId(772, 21); }
};

using ktbC_ESTWrapper = mdl_ExtensionWrapper<ktbC_EventSeriesTypeCont>;
