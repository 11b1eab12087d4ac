#pragma once
// The model's container of constraints ("constraints").
#include "framework/fw_Field.h"
#include "kco/kcoC_ConstraintContainerIMPLSC.h"
#include "platform/model/ddr_RepositoryShortcut.h"

class kcoC_ConstraintContainerInModelShortcut
    : public ddr_RepositoryShortcut<kcoC_ConstraintContainerInModelShortcut, kcoC_ConstraintContainerIMPLSC> {
 public:
  static constexpr const char* kClassName = "kcoC_ConstraintContainerInModelShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(720, 19); }
};
