#pragma once
// A shortcut to a container of objective functions.
#include "framework/fw_Field.h"
#include "kop/kopC_ObjectiveFunctionContainerIMPLSC.h"
#include "platform/model/ddr_Shortcut.h"

class kopC_ObjectiveFunctionContainerShortcut : public ddr_Shortcut<kopC_ObjectiveFunctionContainerIMPLSC> {
 public:
  static constexpr const char* kClassName = "kopC_ObjectiveFunctionContainerShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(932, 39); }
  using ddr_Shortcut::ddr_Shortcut;
  // Rebuilds the concrete shortcut a record names.
  static kopC_ObjectiveFunctionContainerShortcut Ctor(const cls_ReadVisitor& r);
};
