#pragma once
// The model's container of mean-field constituents ("fieldConstituents").
#include "kma/kmaC_FieldConstituentContainerIMPLSC.h"
#include "platform/model/ddr_RepositoryShortcut.h"

class kmaC_FieldConstituentContainerInModelShortcut
    : public ddr_RepositoryShortcut<kmaC_FieldConstituentContainerInModelShortcut, kmaC_FieldConstituentContainerIMPLSC> {
 public:
  static constexpr const char* kClassName = "kmaC_FieldConstituentContainerInModelShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(kmaC_kArchKey, 147); }
};
