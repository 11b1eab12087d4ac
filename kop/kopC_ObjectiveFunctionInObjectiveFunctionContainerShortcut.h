#pragma once
// A objective function by name inside the container of its task.
#include "framework/fw_Field.h"
#include "kop/kopC_ObjectiveFunctionContainerShortcut.h"
#include "kop/kopC_ObjectiveFunctionIMPLSC.h"
#include "kop/kopC_ObjectiveFunctionContainerInModelShortcut.h"
#include "kop/kopC_TaskInTaskContainerShortcut.h"
#include "kop/kopC_TaskShortcut.h"
#include "platform/model/ddr_SequenceShortcut.h"

class kopC_ObjectiveFunctionInObjectiveFunctionContainerShortcut : public ddr_SequenceShortcut<kopC_ObjectiveFunctionInObjectiveFunctionContainerShortcut, kopC_ObjectiveFunctionIMPLSC, kopC_ObjectiveFunctionContainerShortcut> {
 public:
  static constexpr const char* kClassName = "kopC_ObjectiveFunctionInObjectiveFunctionContainerShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(932, 37); }
  using ddr_SequenceShortcut::ddr_SequenceShortcut;
  // The objective function of that name in the named task of the model's container.
  kopC_ObjectiveFunctionInObjectiveFunctionContainerShortcut(const cow_String& task, const cow_String& name)
      : ddr_SequenceShortcut(kopC_ObjectiveFunctionContainerInModelShortcut(kopC_TaskShortcut(kopC_TaskInTaskContainerShortcut(task))), name) {}
};
