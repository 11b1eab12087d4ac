#pragma once
// Progressive element activations by name ("elementProgressiveActivations").
#include "framework/fw_Field.h"
#include "ktb/ktbC_ElemProgressiveActivation.h"
#include "platform/model/mdl_MapString2ObjCow.h"

template <>
struct mdl_MapTraits<ktbC_ElemProgressiveActivation> {
  static constexpr const char* kClassName = "ktbC_ElemProgActivationCont";
  static constexpr const char* kRepositoryName = "elementProgressiveActivations";
  static constexpr int kVersion = ktbC_ElemProgressiveActivation::kVersion;
  static constexpr unsigned TypeId() { return fw_TypeId(772, 19); }
};

using ktbC_ElemProgActivationCont = mdl_MapString2ObjCow<ktbC_ElemProgressiveActivation>;
