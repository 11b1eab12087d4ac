#pragma once
// Beam profiles of every kind by name ("profiles").
#include "framework/fw_Field.h"
#include "kbp/kbpC_BeamProfile.h"
#include "platform/model/mdl_MapString2ObjCow.h"

template <>
struct mdl_MapTraits<kbpC_BeamProfile> {
  static constexpr const char* kClassName = "kbpC_BeamProfileContainer";
  static constexpr const char* kRepositoryName = "profiles";
  static constexpr int kVersion = kbpC_BeamProfile::kVersion;
  static constexpr unsigned TypeId() { return fw_TypeId(612, 15); }
};

using kbpC_BeamProfileContainer = mdl_MapString2ObjCow<kbpC_BeamProfile>;
