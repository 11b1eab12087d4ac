#pragma once
// The control container as a model extension.
#include "kad/kadC_AdptMeshCtrlCont.h"
#include "platform/model/mdl_ExtensionWrapper.h"

template <>
struct mdl_WrapperTraits<kadC_AdptMeshCtrlCont> {
  static constexpr const char* kClassName = "kadC_ACWrapper";
  static constexpr int kVersion = 302;
  static constexpr unsigned TypeId() { return fw_TypeId(616, 16); }
};

using kadC_ACWrapper = mdl_ExtensionWrapper<kadC_AdptMeshCtrlCont>;
