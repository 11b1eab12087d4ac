#pragma once
// A shortcut to a variable of a task, as the items that read variables hold it.
#include "framework/fw_Field.h"
#include "kop/kopC_VariableIMPLSC.h"
#include "platform/model/ddr_Shortcut.h"

class kopC_BaseVariableShortcut : public ddr_Shortcut<kopC_VariableIMPLSC> {
 public:
  static constexpr const char* kClassName = "kopC_BaseVariableShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(932, 71); }
  using ddr_Shortcut::ddr_Shortcut;
  // Rebuilds the concrete shortcut a record names.
  static kopC_BaseVariableShortcut Ctor(const cls_ReadVisitor& r);
};
