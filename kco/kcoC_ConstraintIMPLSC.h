#pragma once
// The implementation base of every shortcut to a constraint.
#include "framework/fw_Field.h"
#include "kco/kcoC_Constraint.h"
#include "platform/model/ddr_ShortcutIMPL.h"

class kcoC_ConstraintIMPLSC : public ddr_ShortcutIMPL<kcoC_Constraint> {
 public:
  static constexpr const char* kClassName = "kcoC_ConstraintIMPLSC";
  static constexpr unsigned TypeId() { return fw_TypeId(720, 14); }
};
