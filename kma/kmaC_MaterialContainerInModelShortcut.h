#pragma once
// The model's container of materials ("materials").
#include "kma/kmaC_MaterialContainerIMPLSC.h"
#include "platform/model/ddr_RepositoryShortcut.h"

class kmaC_MaterialContainerInModelShortcut
    : public ddr_RepositoryShortcut<kmaC_MaterialContainerInModelShortcut, kmaC_MaterialContainerIMPLSC> {
 public:
  static constexpr const char* kClassName = "kmaC_MaterialContainerInModelShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(kmaC_kArchKey, 99); }
};
