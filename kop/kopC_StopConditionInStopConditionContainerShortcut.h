#pragma once
// A stop condition by name inside the container of its task.
#include "framework/fw_Field.h"
#include "kop/kopC_StopConditionContainerShortcut.h"
#include "kop/kopC_StopConditionIMPLSC.h"
#include "kop/kopC_StopConditionContainerInModelShortcut.h"
#include "kop/kopC_TaskInTaskContainerShortcut.h"
#include "kop/kopC_TaskShortcut.h"
#include "platform/model/ddr_SequenceShortcut.h"

class kopC_StopConditionInStopConditionContainerShortcut : public ddr_SequenceShortcut<kopC_StopConditionInStopConditionContainerShortcut, kopC_StopConditionIMPLSC, kopC_StopConditionContainerShortcut> {
 public:
  static constexpr const char* kClassName = "kopC_StopConditionInStopConditionContainerShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(932, 56); }
  using ddr_SequenceShortcut::ddr_SequenceShortcut;
  // The stop condition of that name in the named task of the model's container.
  kopC_StopConditionInStopConditionContainerShortcut(const cow_String& task, const cow_String& name)
      : ddr_SequenceShortcut(kopC_StopConditionContainerInModelShortcut(kopC_TaskShortcut(kopC_TaskInTaskContainerShortcut(task))), name) {}
};
