#pragma once
// Features of the fastener family by name ("fasteners"), held by the model's engineering features.
#include "framework/fw_Field.h"
#include "kef/kefC_Fastener.h"
#include "platform/model/mdl_MapString2ObjCow.h"

template <>
struct mdl_MapTraits<kefC_Fastener> {
  static constexpr const char* kClassName = "kefC_FastenerContainer";
  static constexpr const char* kRepositoryName = "fasteners";
  static constexpr int kVersion = kefC_Fastener::kVersion;
  static constexpr unsigned TypeId() { return fw_TypeId(844, 3); }
};

using kefC_FastenerContainer = mdl_MapString2ObjCow<kefC_Fastener>;
