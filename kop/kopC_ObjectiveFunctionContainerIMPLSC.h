#pragma once
// The implementation base of every shortcut to a container of objective functions.
#include "framework/fw_Field.h"
#include "kop/kopC_ObjectiveFunctionContainer.h"
#include "platform/model/ddr_ShortcutIMPL.h"

class kopC_ObjectiveFunctionContainerIMPLSC : public ddr_ShortcutIMPL<kopC_ObjectiveFunctionContainer> {
 public:
  static constexpr const char* kClassName = "kopC_ObjectiveFunctionContainerIMPLSC";
  static constexpr unsigned TypeId() { return fw_TypeId(932, 38); }
};
