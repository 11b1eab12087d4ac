#pragma once
// A shortcut to a stop condition of any kind.
#include "framework/fw_Field.h"
#include "kop/kopC_StopConditionIMPLSC.h"
#include "platform/model/ddr_Shortcut.h"

class kopC_StopConditionShortcut : public ddr_Shortcut<kopC_StopConditionIMPLSC> {
 public:
  static constexpr const char* kClassName = "kopC_StopConditionShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(932, 55); }
  using ddr_Shortcut::ddr_Shortcut;
  // Rebuilds the concrete shortcut a record names.
  static kopC_StopConditionShortcut Ctor(const cls_ReadVisitor& r);
};
