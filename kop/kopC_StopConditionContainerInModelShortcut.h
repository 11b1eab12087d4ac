#pragma once
// The container of stop conditions of a task in the model, reached through the task's shortcut.
#include "framework/fw_Field.h"
#include "kop/kopC_StopConditionContainerIMPLSC.h"
#include "kop/kopC_TaskShortcut.h"
#include "platform/model/ddr_MemberShortcut.h"

class kopC_StopConditionContainerInModelShortcut : public ddr_MemberShortcut<kopC_StopConditionContainerInModelShortcut, kopC_StopConditionContainerIMPLSC, kopC_TaskShortcut, 6> {
 public:
  static constexpr const char* kClassName = "kopC_StopConditionContainerInModelShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(932, 59); }
  using ddr_MemberShortcut::ddr_MemberShortcut;
};
