#pragma once
// A constraint by name inside its container. Resolving it for modification refuses an empty
// container and a missing name with the module's own messages (the container's own refusal, which
// every lookup by name shares).
#include "framework/fw_Field.h"
#include "kco/kcoC_ConstraintContainerInModelShortcut.h"
#include "kco/kcoC_ConstraintContainerShortcut.h"
#include "kco/kcoC_ConstraintIMPLSC.h"
#include "platform/model/ddr_SequenceShortcut.h"

class kcoC_ConstraintInConstraintContainerShortcut
    : public ddr_SequenceShortcut<kcoC_ConstraintInConstraintContainerShortcut, kcoC_ConstraintIMPLSC,
                                  kcoC_ConstraintContainerShortcut> {
 public:
  static constexpr const char* kClassName = "kcoC_ConstraintInConstraintContainerShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(720, 16); }
  using ddr_SequenceShortcut::ddr_SequenceShortcut;
  // The constraint of that name in the model's own container.
  explicit kcoC_ConstraintInConstraintContainerShortcut(const cow_String& name)
      : ddr_SequenceShortcut(kcoC_ConstraintContainerInModelShortcut(), name) {}
};
