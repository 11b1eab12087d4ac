#pragma once
// The container of objective functions of a task in the model, reached through the task's shortcut.
#include "framework/fw_Field.h"
#include "kop/kopC_ObjectiveFunctionContainerIMPLSC.h"
#include "kop/kopC_TaskShortcut.h"
#include "platform/model/ddr_MemberShortcut.h"

class kopC_ObjectiveFunctionContainerInModelShortcut : public ddr_MemberShortcut<kopC_ObjectiveFunctionContainerInModelShortcut, kopC_ObjectiveFunctionContainerIMPLSC, kopC_TaskShortcut, 5> {
 public:
  static constexpr const char* kClassName = "kopC_ObjectiveFunctionContainerInModelShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(932, 40); }
  using ddr_MemberShortcut::ddr_MemberShortcut;
};
