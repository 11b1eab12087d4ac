#pragma once
// The model's container of beam profiles ("profiles").
#include "framework/fw_Field.h"
#include "kbp/kbpC_BeamProfileContainerIMPLSC.h"
#include "platform/model/ddr_RepositoryShortcut.h"

class kbpC_BeamProfileContainerInModelShortcut
    : public ddr_RepositoryShortcut<kbpC_BeamProfileContainerInModelShortcut, kbpC_BeamProfileContainerIMPLSC> {
 public:
  static constexpr const char* kClassName = "kbpC_BeamProfileContainerInModelShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(612, 21); }
};
