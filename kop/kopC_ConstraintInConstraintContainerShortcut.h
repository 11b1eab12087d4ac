#pragma once
// A constraint by name inside the container of its task.
#include "framework/fw_Field.h"
#include "kop/kopC_ConstraintContainerShortcut.h"
#include "kop/kopC_ConstraintIMPLSC.h"
#include "kop/kopC_ConstraintContainerInModelShortcut.h"
#include "kop/kopC_TaskInTaskContainerShortcut.h"
#include "kop/kopC_TaskShortcut.h"
#include "platform/model/ddr_SequenceShortcut.h"

class kopC_ConstraintInConstraintContainerShortcut : public ddr_SequenceShortcut<kopC_ConstraintInConstraintContainerShortcut, kopC_ConstraintIMPLSC, kopC_ConstraintContainerShortcut> {
 public:
  static constexpr const char* kClassName = "kopC_ConstraintInConstraintContainerShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(932, 46); }
  using ddr_SequenceShortcut::ddr_SequenceShortcut;
  // The constraint of that name in the named task of the model's container.
  kopC_ConstraintInConstraintContainerShortcut(const cow_String& task, const cow_String& name)
      : ddr_SequenceShortcut(kopC_ConstraintContainerInModelShortcut(kopC_TaskShortcut(kopC_TaskInTaskContainerShortcut(task))), name) {}
};
