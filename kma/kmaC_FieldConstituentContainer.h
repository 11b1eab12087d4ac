#pragma once
// The model's mean-field constituents by name ("fieldConstituents").
#include "framework/fw_Field.h"
#include "kma/kmaC_FieldConstituent.h"
#include "platform/model/mdl_MapString2ObjCow.h"

template <>
struct mdl_MapTraits<kmaC_FieldConstituent> {
  static constexpr const char* kClassName = "kmaC_FieldConstituentContainer";
  static constexpr const char* kRepositoryName = "fieldConstituents";
  static constexpr int kVersion = 203;
  static constexpr unsigned TypeId() { return fw_TypeId(kmaC_kArchKey, 141); }
};

using kmaC_FieldConstituentContainer = mdl_MapString2ObjCow<kmaC_FieldConstituent>;
