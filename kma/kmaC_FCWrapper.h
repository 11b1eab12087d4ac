#pragma once
// The constituent container as a model extension.
#include "kma/kmaC_FieldConstituentContainer.h"
#include "platform/model/mdl_ExtensionWrapper.h"

template <>
struct mdl_WrapperTraits<kmaC_FieldConstituentContainer> {
  static constexpr const char* kClassName = "kmaC_FCWrapper";
  static constexpr int kVersion = 203;
  static constexpr unsigned TypeId() { return fw_TypeId(kmaC_kArchKey, 148); }
};

using kmaC_FCWrapper = mdl_ExtensionWrapper<kmaC_FieldConstituentContainer>;
