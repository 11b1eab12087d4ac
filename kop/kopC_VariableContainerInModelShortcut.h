#pragma once
// The container of variables of a task in the model, reached through the task's shortcut.
#include "framework/fw_Field.h"
#include "kop/kopC_VariableContainerIMPLSC.h"
#include "kop/kopC_TaskShortcut.h"
#include "platform/model/ddr_MemberShortcut.h"

class kopC_VariableContainerInModelShortcut : public ddr_MemberShortcut<kopC_VariableContainerInModelShortcut, kopC_VariableContainerIMPLSC, kopC_TaskShortcut, 7> {
 public:
  static constexpr const char* kClassName = "kopC_VariableContainerInModelShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(932, 69); }
  using ddr_MemberShortcut::ddr_MemberShortcut;
};
