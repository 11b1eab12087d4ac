#pragma once
// A shortcut to a container of tasks.
#include "framework/fw_Field.h"
#include "kop/kopC_TaskContainerIMPLSC.h"
#include "platform/model/ddr_Shortcut.h"

class kopC_TaskContainerShortcut : public ddr_Shortcut<kopC_TaskContainerIMPLSC> {
 public:
  static constexpr const char* kClassName = "kopC_TaskContainerShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(932, 14); }
  using ddr_Shortcut::ddr_Shortcut;
  // Rebuilds the concrete shortcut a record names.
  static kopC_TaskContainerShortcut Ctor(const cls_ReadVisitor& r);
};
