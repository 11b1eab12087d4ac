#pragma once
// The container of constraints of a task in the model, reached through the task's shortcut.
#include "framework/fw_Field.h"
#include "kop/kopC_ConstraintContainerIMPLSC.h"
#include "kop/kopC_TaskShortcut.h"
#include "platform/model/ddr_MemberShortcut.h"

class kopC_ConstraintContainerInModelShortcut : public ddr_MemberShortcut<kopC_ConstraintContainerInModelShortcut, kopC_ConstraintContainerIMPLSC, kopC_TaskShortcut, 2> {
 public:
  static constexpr const char* kClassName = "kopC_ConstraintContainerInModelShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(932, 49); }
  using ddr_MemberShortcut::ddr_MemberShortcut;
};
