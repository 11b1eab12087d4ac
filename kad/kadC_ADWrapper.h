#pragma once
// The domain container as a model extension, so that a model holds its adaptive mesh domains
// ("adaptiveMeshDomains") beside its controls. The module's architecture table has no row for
// it; its type id takes the first number after the table's last row.
#include "kad/kadC_AdptMeshDomCont.h"
#include "platform/model/mdl_ExtensionWrapper.h"

template <>
struct mdl_WrapperTraits<kadC_AdptMeshDomCont> {
  static constexpr const char* kClassName = "kadC_ADWrapper";
  static constexpr int kVersion = 302;
  static constexpr unsigned TypeId() { return fw_TypeId(616, 17); }
};

using kadC_ADWrapper = mdl_ExtensionWrapper<kadC_AdptMeshDomCont>;
