#pragma once
// A variable by name inside the container of its task.
#include "framework/fw_Field.h"
#include "kop/kopC_VariableContainerShortcut.h"
#include "kop/kopC_VariableIMPLSC.h"
#include "kop/kopC_VariableContainerInModelShortcut.h"
#include "kop/kopC_TaskInTaskContainerShortcut.h"
#include "kop/kopC_TaskShortcut.h"
#include "platform/model/ddr_SequenceShortcut.h"

class kopC_VariableInVariableContainerShortcut : public ddr_SequenceShortcut<kopC_VariableInVariableContainerShortcut, kopC_VariableIMPLSC, kopC_VariableContainerShortcut> {
 public:
  static constexpr const char* kClassName = "kopC_VariableInVariableContainerShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(932, 66); }
  using ddr_SequenceShortcut::ddr_SequenceShortcut;
  // The variable of that name in the named task of the model's container.
  kopC_VariableInVariableContainerShortcut(const cow_String& task, const cow_String& name)
      : ddr_SequenceShortcut(kopC_VariableContainerInModelShortcut(kopC_TaskShortcut(kopC_TaskInTaskContainerShortcut(task))), name) {}
};
