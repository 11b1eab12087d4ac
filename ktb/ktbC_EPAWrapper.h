#pragma once
// The progressive element activation container as a model extension.
#include "ktb/ktbC_ElemProgActivationCont.h"
#include "platform/model/mdl_ExtensionWrapper.h"

template <>
struct mdl_WrapperTraits<ktbC_ElemProgActivationCont> {
  static constexpr const char* kClassName = "ktbC_EPAWrapper";
  static constexpr int kVersion = ktbC_ElemProgActivationCont::kVersion;
  static constexpr unsigned TypeId() { return fw_TypeId(772, 23); }
};

using ktbC_EPAWrapper = mdl_ExtensionWrapper<ktbC_ElemProgActivationCont>;
