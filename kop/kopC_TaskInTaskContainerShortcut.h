#pragma once
// A task by name inside its container.
#include "framework/fw_Field.h"
#include "kop/kopC_TaskContainerInModelShortcut.h"
#include "kop/kopC_TaskContainerShortcut.h"
#include "kop/kopC_TaskIMPLSC.h"
#include "platform/model/ddr_SequenceShortcut.h"

class kopC_TaskInTaskContainerShortcut
    : public ddr_SequenceShortcut<kopC_TaskInTaskContainerShortcut, kopC_TaskIMPLSC, kopC_TaskContainerShortcut> {
 public:
  static constexpr const char* kClassName = "kopC_TaskInTaskContainerShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(932, 12); }
  using ddr_SequenceShortcut::ddr_SequenceShortcut;
  // The task of that name in the model's own container.
  explicit kopC_TaskInTaskContainerShortcut(const cow_String& name)
      : ddr_SequenceShortcut(kopC_TaskContainerInModelShortcut(), name) {}
};
