#pragma once
// A shortcut to a container of variables.
#include "framework/fw_Field.h"
#include "kop/kopC_VariableContainerIMPLSC.h"
#include "platform/model/ddr_Shortcut.h"

class kopC_VariableContainerShortcut : public ddr_Shortcut<kopC_VariableContainerIMPLSC> {
 public:
  static constexpr const char* kClassName = "kopC_VariableContainerShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(932, 68); }
  using ddr_Shortcut::ddr_Shortcut;
  // Rebuilds the concrete shortcut a record names.
  static kopC_VariableContainerShortcut Ctor(const cls_ReadVisitor& r);
};
