#pragma once
// Design responses of a task by name ("designResponses").
#include "framework/fw_Field.h"
#include "kop/kopC_DesignResponse.h"
#include "platform/model/mdl_MapString2ObjCow.h"

template <>
struct mdl_MapTraits<kopC_DesignResponse> {
  static constexpr const char* kClassName = "kopC_DesignResponseContainer";
  static constexpr const char* kRepositoryName = "designResponses";
  static constexpr int kVersion = kopC_DesignResponse::kVersion;
  static constexpr unsigned TypeId() { return fw_TypeId(932, 24); }
};

using kopC_DesignResponseContainer = mdl_MapString2ObjCow<kopC_DesignResponse>;
