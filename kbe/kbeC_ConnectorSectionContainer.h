#pragma once
// Connector sections by name ("connectorSections").
#include "framework/fw_Field.h"
#include "kbe/kbeC_ConnectorSection.h"
#include "platform/model/mdl_MapString2ObjCow.h"

template <>
struct mdl_MapTraits<kbeC_ConnectorSection> {
  static constexpr const char* kClassName = "kbeC_ConnectorSectionContainer";
  static constexpr const char* kRepositoryName = "connectorSections";
  static constexpr int kVersion = kbeC_ConnectorSection::kVersion;
  static constexpr unsigned TypeId() { return fw_TypeId(680, 72); }
};

using kbeC_ConnectorSectionContainer = mdl_MapString2ObjCow<kbeC_ConnectorSection>;
