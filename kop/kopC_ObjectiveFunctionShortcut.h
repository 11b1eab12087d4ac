#pragma once
// A shortcut to a objective function of any kind.
#include "framework/fw_Field.h"
#include "kop/kopC_ObjectiveFunctionIMPLSC.h"
#include "platform/model/ddr_Shortcut.h"

class kopC_ObjectiveFunctionShortcut : public ddr_Shortcut<kopC_ObjectiveFunctionIMPLSC> {
 public:
  static constexpr const char* kClassName = "kopC_ObjectiveFunctionShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(932, 36); }
  using ddr_Shortcut::ddr_Shortcut;
  // Rebuilds the concrete shortcut a record names.
  static kopC_ObjectiveFunctionShortcut Ctor(const cls_ReadVisitor& r);
};
