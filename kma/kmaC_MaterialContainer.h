#pragma once
// The model's materials by name ("materials").
#include "framework/fw_Field.h"
#include "kma/kmaC_Material.h"
#include "platform/model/mdl_MapString2ObjCow.h"

template <>
struct mdl_MapTraits<kmaC_Material> {
  static constexpr const char* kClassName = "kmaC_MaterialContainer";
  static constexpr const char* kRepositoryName = "materials";
  static constexpr int kVersion = 203;
  static constexpr unsigned TypeId() { return fw_TypeId(kmaC_kArchKey, 93); }
};

using kmaC_MaterialContainer = mdl_MapString2ObjCow<kmaC_Material>;
