#pragma once
// Features of the inertia family by name ("inertias"), held by the model's engineering features.
#include "framework/fw_Field.h"
#include "kef/kefC_Inertia.h"
#include "platform/model/mdl_MapString2ObjCow.h"

template <>
struct mdl_MapTraits<kefC_Inertia> {
  static constexpr const char* kClassName = "kefC_InertiaContainer";
  static constexpr const char* kRepositoryName = "inertias";
  static constexpr int kVersion = kefC_Inertia::kVersion;
  static constexpr unsigned TypeId() { return fw_TypeId(844, 2); }
};

using kefC_InertiaContainer = mdl_MapString2ObjCow<kefC_Inertia>;
