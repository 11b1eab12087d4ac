#pragma once
// A shortcut to a container of stop conditions.
#include "framework/fw_Field.h"
#include "kop/kopC_StopConditionContainerIMPLSC.h"
#include "platform/model/ddr_Shortcut.h"

class kopC_StopConditionContainerShortcut : public ddr_Shortcut<kopC_StopConditionContainerIMPLSC> {
 public:
  static constexpr const char* kClassName = "kopC_StopConditionContainerShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(932, 58); }
  using ddr_Shortcut::ddr_Shortcut;
  // Rebuilds the concrete shortcut a record names.
  static kopC_StopConditionContainerShortcut Ctor(const cls_ReadVisitor& r);
};
