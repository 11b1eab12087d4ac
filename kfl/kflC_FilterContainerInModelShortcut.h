#pragma once
// The model's container of filters ("filters").
#include "framework/fw_Field.h"
#include "kfl/kflC_FilterContainerIMPLSC.h"
#include "platform/model/ddr_RepositoryShortcut.h"

class kflC_FilterContainerInModelShortcut
    : public ddr_RepositoryShortcut<kflC_FilterContainerInModelShortcut, kflC_FilterContainerIMPLSC> {
 public:
  static constexpr const char* kClassName = "kflC_FilterContainerInModelShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(849, 12); }
};
