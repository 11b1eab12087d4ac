#pragma once
// The implementation base of every shortcut to a container of stop conditions.
#include "framework/fw_Field.h"
#include "kop/kopC_StopConditionContainer.h"
#include "platform/model/ddr_ShortcutIMPL.h"

class kopC_StopConditionContainerIMPLSC : public ddr_ShortcutIMPL<kopC_StopConditionContainer> {
 public:
  static constexpr const char* kClassName = "kopC_StopConditionContainerIMPLSC";
  static constexpr unsigned TypeId() { return fw_TypeId(932, 57); }
};
