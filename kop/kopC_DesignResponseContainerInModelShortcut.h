#pragma once
// The container of design responses of a task in the model, reached through the task's shortcut.
#include "framework/fw_Field.h"
#include "kop/kopC_DesignResponseContainerIMPLSC.h"
#include "kop/kopC_TaskShortcut.h"
#include "platform/model/ddr_MemberShortcut.h"

class kopC_DesignResponseContainerInModelShortcut : public ddr_MemberShortcut<kopC_DesignResponseContainerInModelShortcut, kopC_DesignResponseContainerIMPLSC, kopC_TaskShortcut, 3> {
 public:
  static constexpr const char* kClassName = "kopC_DesignResponseContainerInModelShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(932, 30); }
  using ddr_MemberShortcut::ddr_MemberShortcut;
};
