#pragma once
// The implementation base of every shortcut to a container of tasks.
#include "framework/fw_Field.h"
#include "kop/kopC_TaskContainer.h"
#include "platform/model/ddr_ShortcutIMPL.h"

class kopC_TaskContainerIMPLSC : public ddr_ShortcutIMPL<kopC_TaskContainer> {
 public:
  static constexpr const char* kClassName = "kopC_TaskContainerIMPLSC";
  static constexpr unsigned TypeId() { return fw_TypeId(932, 13); }
};
