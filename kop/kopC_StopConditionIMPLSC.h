#pragma once
// The implementation base of every shortcut to a stop condition of a task.
#include "framework/fw_Field.h"
#include "kop/kopC_StopCondition.h"
#include "platform/model/ddr_ShortcutIMPL.h"

class kopC_StopConditionIMPLSC : public ddr_ShortcutIMPL<kopC_StopCondition> {
 public:
  static constexpr const char* kClassName = "kopC_StopConditionIMPLSC";
  static constexpr unsigned TypeId() { return fw_TypeId(932, 54); }
};
