#pragma once
// The implementation base of every shortcut to a constraint of a task.
#include "framework/fw_Field.h"
#include "kop/kopC_Constraint.h"
#include "platform/model/ddr_ShortcutIMPL.h"

class kopC_ConstraintIMPLSC : public ddr_ShortcutIMPL<kopC_Constraint> {
 public:
  static constexpr const char* kClassName = "kopC_ConstraintIMPLSC";
  static constexpr unsigned TypeId() { return fw_TypeId(932, 44); }
};
