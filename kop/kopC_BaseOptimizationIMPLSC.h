#pragma once
// The implementation base of every shortcut to an optimization task object of any kind.
#include "framework/fw_Field.h"
#include "kop/kopC_BaseOptimization.h"
#include "platform/model/ddr_ShortcutIMPL.h"

class kopC_BaseOptimizationIMPLSC : public ddr_ShortcutIMPL<kopC_BaseOptimization> {
 public:
  static constexpr const char* kClassName = "kopC_BaseOptimizationIMPLSC";
  static constexpr unsigned TypeId() { return fw_TypeId(932, 10); }
};
