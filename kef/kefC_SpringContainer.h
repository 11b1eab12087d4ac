#pragma once
// Features of the spring family by name ("springDashpots"), held by the model's engineering features.
#include "framework/fw_Field.h"
#include "kef/kefC_Spring.h"
#include "platform/model/mdl_MapString2ObjCow.h"

template <>
struct mdl_MapTraits<kefC_Spring> {
  static constexpr const char* kClassName = "kefC_SpringContainer";
  static constexpr const char* kRepositoryName = "springDashpots";
  static constexpr int kVersion = kefC_Spring::kVersion;
  static constexpr unsigned TypeId() { return fw_TypeId(844, 5); }
};

using kefC_SpringContainer = mdl_MapString2ObjCow<kefC_Spring>;
