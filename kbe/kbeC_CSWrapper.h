#pragma once
// The connector section container as a model extension.
#include "kbe/kbeC_ConnectorSectionContainer.h"
#include "platform/model/mdl_ExtensionWrapper.h"

template <>
struct mdl_WrapperTraits<kbeC_ConnectorSectionContainer> {
  static constexpr const char* kClassName = "kbeC_CSWrapper";
  static constexpr int kVersion = kbeC_ConnectorSection::kVersion;
  static constexpr unsigned TypeId() { return fw_TypeId(680, 5); }
};

using kbeC_CSWrapper = mdl_ExtensionWrapper<kbeC_ConnectorSectionContainer>;
