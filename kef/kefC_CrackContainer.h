#pragma once
// Features of the crack family by name ("cracks"), held by the model's engineering features.
#include "framework/fw_Field.h"
#include "kef/kefC_Crack.h"
#include "platform/model/mdl_MapString2ObjCow.h"

template <>
struct mdl_MapTraits<kefC_Crack> {
  static constexpr const char* kClassName = "kefC_CrackContainer";
  static constexpr const char* kRepositoryName = "cracks";
  static constexpr int kVersion = kefC_Crack::kVersion;
  static constexpr unsigned TypeId() { return fw_TypeId(844, 4); }
};

using kefC_CrackContainer = mdl_MapString2ObjCow<kefC_Crack>;
