#pragma once
// The model's container of amplitudes ("amplitudes").
#include "framework/fw_Field.h"
#include "kam/kamC_AmplitudeContainerIMPLSC.h"
#include "platform/model/ddr_RepositoryShortcut.h"

class kamC_AmplitudeContainerInModelShortcut
    : public ddr_RepositoryShortcut<kamC_AmplitudeContainerInModelShortcut, kamC_AmplitudeContainerIMPLSC> {
 public:
  static constexpr const char* kClassName = "kamC_AmplitudeContainerInModelShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(580, 22); }
};
