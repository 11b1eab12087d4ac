#pragma once
// The implementation base of every shortcut to a task.
#include "framework/fw_Field.h"
#include "kop/kopC_Task.h"
#include "platform/model/ddr_ShortcutIMPL.h"

class kopC_TaskIMPLSC : public ddr_ShortcutIMPL<kopC_Task> {
 public:
  static constexpr const char* kClassName = "kopC_TaskIMPLSC";
  static constexpr unsigned TypeId() { return fw_TypeId(932, 5); }
};
