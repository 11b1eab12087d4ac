#pragma once
// The implementation base of every shortcut to a container of variables.
#include "framework/fw_Field.h"
#include "kop/kopC_VariableContainer.h"
#include "platform/model/ddr_ShortcutIMPL.h"

class kopC_VariableContainerIMPLSC : public ddr_ShortcutIMPL<kopC_VariableContainer> {
 public:
  static constexpr const char* kClassName = "kopC_VariableContainerIMPLSC";
  static constexpr unsigned TypeId() { return fw_TypeId(932, 67); }
};
