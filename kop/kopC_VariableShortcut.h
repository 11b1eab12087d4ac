#pragma once
// A shortcut to a variable of any kind.
#include "framework/fw_Field.h"
#include "kop/kopC_VariableIMPLSC.h"
#include "platform/model/ddr_Shortcut.h"

class kopC_VariableShortcut : public ddr_Shortcut<kopC_VariableIMPLSC> {
 public:
  static constexpr const char* kClassName = "kopC_VariableShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(932, 65); }
  using ddr_Shortcut::ddr_Shortcut;
  // Rebuilds the concrete shortcut a record names.
  static kopC_VariableShortcut Ctor(const cls_ReadVisitor& r);
};
