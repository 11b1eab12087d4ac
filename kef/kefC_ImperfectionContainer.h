#pragma once
// Features of the imperfection family by name ("imperfections"), held by the model's engineering features.
#include "framework/fw_Field.h"
#include "kef/kefC_Imperfection.h"
#include "platform/model/mdl_MapString2ObjCow.h"

template <>
struct mdl_MapTraits<kefC_Imperfection> {
  static constexpr const char* kClassName = "kefC_ImperfectionContainer";
  static constexpr const char* kRepositoryName = "imperfections";
  static constexpr int kVersion = kefC_Imperfection::kVersion;
  static constexpr unsigned TypeId() { return fw_TypeId(844, 6); }
};

using kefC_ImperfectionContainer = mdl_MapString2ObjCow<kefC_Imperfection>;
