#pragma once
// An amplitude by name inside its container.
#include "framework/fw_Field.h"
#include "kam/kamC_AmplitudeContainerInModelShortcut.h"
#include "kam/kamC_AmplitudeContainerShortcut.h"
#include "kam/kamC_AmplitudeIMPLSC.h"
#include "platform/model/ddr_SequenceShortcut.h"

class kamC_AmplitudeInAmplitudeContainerShortcut
    : public ddr_SequenceShortcut<kamC_AmplitudeInAmplitudeContainerShortcut, kamC_AmplitudeIMPLSC,
                                  kamC_AmplitudeContainerShortcut> {
 public:
  static constexpr const char* kClassName = "kamC_AmplitudeInAmplitudeContainerShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(580, 19); }
  using ddr_SequenceShortcut::ddr_SequenceShortcut;
  // The amplitude of that name in the model's own container.
  explicit kamC_AmplitudeInAmplitudeContainerShortcut(const cow_String& name)
      : ddr_SequenceShortcut(kamC_AmplitudeContainerInModelShortcut(), name) {}
};
