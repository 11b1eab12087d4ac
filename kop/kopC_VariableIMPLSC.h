#pragma once
// The implementation base of every shortcut to a variable of a task.
#include "framework/fw_Field.h"
#include "kop/kopC_Variable.h"
#include "platform/model/ddr_ShortcutIMPL.h"

class kopC_VariableIMPLSC : public ddr_ShortcutIMPL<kopC_Variable> {
 public:
  static constexpr const char* kClassName = "kopC_VariableIMPLSC";
  static constexpr unsigned TypeId() { return fw_TypeId(932, 64); }
};
