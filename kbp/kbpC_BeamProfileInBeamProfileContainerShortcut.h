#pragma once
// A beam profile by name inside its container.
#include "framework/fw_Field.h"
#include "kbp/kbpC_BeamProfileContainerInModelShortcut.h"
#include "kbp/kbpC_BeamProfileContainerShortcut.h"
#include "kbp/kbpC_BeamProfileIMPSC.h"
#include "platform/model/ddr_SequenceShortcut.h"

class kbpC_BeamProfileInBeamProfileContainerShortcut
    : public ddr_SequenceShortcut<kbpC_BeamProfileInBeamProfileContainerShortcut, kbpC_BeamProfileIMPSC,
                                  kbpC_BeamProfileContainerShortcut> {
 public:
  static constexpr const char* kClassName = "kbpC_BeamProfileInBeamProfileContainerShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(612, 18); }
  using ddr_SequenceShortcut::ddr_SequenceShortcut;
  // The profile of that name in the model's own container.
  explicit kbpC_BeamProfileInBeamProfileContainerShortcut(const cow_String& name)
      : ddr_SequenceShortcut(kbpC_BeamProfileContainerInModelShortcut(), name) {}
};
