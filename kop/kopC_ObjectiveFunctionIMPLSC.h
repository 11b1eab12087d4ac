#pragma once
// The implementation base of every shortcut to a objective function of a task.
#include "framework/fw_Field.h"
#include "kop/kopC_ObjectiveFunction.h"
#include "platform/model/ddr_ShortcutIMPL.h"

class kopC_ObjectiveFunctionIMPLSC : public ddr_ShortcutIMPL<kopC_ObjectiveFunction> {
 public:
  static constexpr const char* kClassName = "kopC_ObjectiveFunctionIMPLSC";
  static constexpr unsigned TypeId() { return fw_TypeId(932, 35); }
};
